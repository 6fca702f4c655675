#pragma once

#include <cstdint>

#include "base/Event.h"
#include "platform/MessageLoop.h"

// A timer on the message loop. Off from the start, and silent with an interval of 0.
class Timer {
  public:
    Timer(MessageLoop& loop, uint32_t intervalMs) : loop_(loop), interval_(intervalMs) {}
    Timer(const Timer&) = delete;
    Timer& operator=(const Timer&) = delete;
    ~Timer() { Stop(); }

    Event<> Tick;

    uint32_t Interval() const { return interval_; }
    // A new interval begins at once; setting the same one changes nothing.
    void SetInterval(uint32_t milliseconds);

    bool Enabled() const { return enabled_; }
    void SetEnabled(bool enabled);

  private:
    void Start();
    void Stop();

    MessageLoop& loop_;
    uint32_t interval_;
    bool enabled_ = false;
    MessageLoop::TimerId id_ = 0;
};
