#pragma once

#include <cstdint>

#include "platform/Clock.h"

// Time that only moves when it is told to.
class VirtualClock : public Clock {
  public:
    explicit VirtualClock(uint32_t start = 1000) : base_(start) {}

    uint32_t GetTickCount() override { return base_ + static_cast<uint32_t>(elapsed_); }
    void Sleep(uint32_t milliseconds) override { elapsed_ += milliseconds; }

    // Milliseconds since the clock was made; doesn't wrap.
    uint64_t Elapsed() const { return elapsed_; }

    // Forward only; an earlier moment changes nothing.
    void MoveTo(uint64_t elapsed) {
        if (elapsed > elapsed_) elapsed_ = elapsed;
    }

    // What GetTickCount gives now; Elapsed goes on as before.
    void SetTickCount(uint32_t tickCount) { base_ = tickCount - static_cast<uint32_t>(elapsed_); }

  private:
    uint32_t base_;
    uint64_t elapsed_ = 0;
};
