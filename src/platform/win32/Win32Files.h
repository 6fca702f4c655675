#pragma once

#include "platform/FilePort.h"

class Win32Files final : public FilePort {
  public:
    bool Exists(const std::string& path) override;
    // A copy of a read-only file can be written to.
    bool Copy(const std::string& from, const std::string& to) override;
    bool Replace(const std::string& from, const std::string& to) override;
    bool Rename(const std::string& from, const std::string& to) override;
    bool Delete(const std::string& path) override;
};
