#pragma once

#include <windows.h>

#include <condition_variable>
#include <cstdint>
#include <deque>
#include <mutex>
#include <optional>
#include <string>
#include <thread>

namespace bench {

// A child process with pipes for standard input and output. It doesn't outlive this object.
class Process {
  public:
    // Runs a command line in a folder; Id is 0 when that failed.
    Process(const std::string& commandLine, const std::string& folder);
    Process(const Process&) = delete;
    Process& operator=(const Process&) = delete;
    ~Process();

    DWORD Id() const { return id_; }
    bool IsRunning() const;
    // Its exit code, or nothing when it goes on running.
    std::optional<DWORD> WaitForEnd(uint32_t milliseconds) const;
    // At once and without warning. Returns when it is gone.
    void Kill() const;

    // Writes a line and gives the next line that comes back, or an "error:" of its own when none
    // comes in time.
    std::string Ask(const std::string& line, uint32_t milliseconds = 10000);

  private:
    void ReadLines(HANDLE output);

    HANDLE process_ = nullptr;
    DWORD id_ = 0;
    HANDLE input_ = nullptr;
    std::mutex lock_;
    std::condition_variable changed_;
    std::deque<std::string> lines_;
    bool outputEnded_ = false;
    std::thread reader_;
};

}  // namespace bench
