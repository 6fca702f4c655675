#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <mutex>
#include <optional>
#include <thread>
#include <vector>

#include "platform/win32/Win32Handle.h"

// The one thread that all timers of the loop are driven by. It sleeps as long as none is due, and
// for good while there is none.
class Win32TimerThread {
  public:
    // `due` is called on this thread with the id of a timer each time that it is due, with the lock
    // of this class held.
    explicit Win32TimerThread(std::function<void(uint32_t)> due);
    Win32TimerThread(const Win32TimerThread&) = delete;
    Win32TimerThread& operator=(const Win32TimerThread&) = delete;
    ~Win32TimerThread();

    void Start(uint32_t id, uint32_t intervalMs);
    // Due one time only.
    void StartOnce(uint32_t id, uint32_t delayMs);
    void Stop(uint32_t id);

  private:
    using SteadyClock = std::chrono::steady_clock;
    struct Timer {
        uint32_t id;
        std::chrono::milliseconds interval;
        SteadyClock::time_point due;
        bool once;
    };

    void Run();
    void Add(uint32_t id, uint32_t intervalMs, bool once);
    std::optional<SteadyClock::time_point> RaiseDue();
    void Arm(std::optional<SteadyClock::time_point> next);
    void ChoosePeriod();

    std::function<void(uint32_t)> due_;
    Win32Handle changed_;
    Win32Handle waitable_;
    bool highResolution_ = false;
    bool finePeriod_ = false;
    std::mutex mutex_;
    std::vector<Timer> timers_;
    bool ending_ = false;
    std::thread thread_;
};
