#pragma once

#include "platform/FilePort.h"

class Win32Files final : public FilePort {
  public:
    bool Exists(const std::string& path) override;
    // Nothing of a file beyond 64 MiB.
    std::optional<std::string> Read(const std::string& path) override;
    bool Write(const std::string& path, const std::string& content) override;
    bool Replace(const std::string& from, const std::string& to) override;
    bool Rename(const std::string& from, const std::string& to) override;
    bool Delete(const std::string& path) override;
    std::string LastProblem() const override;

  private:
    // Notes how an operation went.
    bool Note(bool well);

    unsigned long problem_ = 0;
};
