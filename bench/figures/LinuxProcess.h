#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace bench {

// What Linux knows of a program that runs under Wine, which itself tells no other program's
// processor time. Nothing anywhere but under Wine.
class LinuxProcess {
  public:
    // The process whose command line has this executable's path, as a Windows program writes it.
    static std::optional<LinuxProcess> Find(const std::string& executable);

    const std::string& Id() const { return id_; }
    // What the processors have spent on its threads, in milliseconds. What a thread that has ended
    // took is lost.
    double CpuMs() const;
    // Memory that belongs to no file.
    uint64_t AnonymousBytes() const;

  private:
    explicit LinuxProcess(std::string id) : id_(std::move(id)) {}

    std::string id_;
};

}  // namespace bench
