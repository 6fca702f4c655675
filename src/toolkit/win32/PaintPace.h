#pragma once

#include <algorithm>
#include <cstdint>

// How often a picture may be painted: what changes now and then is seen at once, what changes at
// every tick no more often than an eye can follow.
class PaintPace {
  public:
    static constexpr uint32_t kIntervalMs = 40;

    // Whether it may be painted at this clock (milliseconds).
    bool MayPaint(uint32_t clock) {
        const uint32_t earned = (clock - since_) / kIntervalMs;
        since_ += earned * kIntervalMs;
        left_ = std::min(left_ + earned, kMostAtOnce);
        return left_ > 0;
    }
    void Painted() {
        if (left_ > 0) --left_;
    }

  private:
    static constexpr uint32_t kMostAtOnce = 8;

    uint32_t since_ = 0;
    uint32_t left_ = kMostAtOnce;
};
