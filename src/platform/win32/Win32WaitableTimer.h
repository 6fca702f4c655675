#pragma once

#include <chrono>

#include "platform/win32/Win32Handle.h"

// A handle that is signalled at a moment, and at each interval after it; as fine as the system has
// them.
class Win32WaitableTimer {
  public:
    Win32WaitableTimer();

    // Takes the place of what was set before. A moment that is past signals at once; with an
    // interval of 0 it is the only one.
    void Set(std::chrono::steady_clock::time_point moment, std::chrono::milliseconds interval = {});
    void Cancel();

    HANDLE Get() const { return timer_.Get(); }
    // Else it is only as fine as the period that the system's clock is set to.
    bool IsFine() const { return fine_; }

  private:
    Win32Handle timer_;
    bool fine_;
};
