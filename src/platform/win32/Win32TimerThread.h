#pragma once

#include <chrono>
#include <functional>
#include <mutex>
#include <optional>
#include <thread>

#include "platform/win32/Win32Handle.h"
#include "platform/win32/Win32WaitableTimer.h"

// Keeps the time while the loop can't: a thread that sleeps for good until it is told a moment.
class Win32TimerThread {
  public:
    using Moment = std::chrono::steady_clock::time_point;

    // `due` is called on this thread at the moment that it was told, and gives the next one, or
    // nothing to sleep for good again.
    explicit Win32TimerThread(std::function<std::optional<Moment>()> due);
    Win32TimerThread(const Win32TimerThread&) = delete;
    Win32TimerThread& operator=(const Win32TimerThread&) = delete;
    ~Win32TimerThread();

    // Does nothing when it is to wake up earlier anyway.
    void WakeAt(Moment moment);

  private:
    void Run();

    std::function<std::optional<Moment>()> due_;
    Win32Handle stop_;
    Win32WaitableTimer timer_;
    std::mutex mutex_;
    std::optional<Moment> wakesAt_;
    std::thread thread_;
};
