#pragma once

#include <array>
#include <cstdint>

// The speed factor of a knob or wheel: how fast it is turned, from the pulses of a period.
class SpeedSampler {
  public:
    // Speeds 5, 10 and 20 come with more pulses a period than these.
    using Thresholds = std::array<int32_t, 3>;

    explicit SpeedSampler(Thresholds thresholds) : thresholds_(thresholds) {}

    void Pulse() { ++pulses_; }

    // Ends a period. A few pulses leave the speed as it is; none bring it back to 1.
    void Sample() {
        const int32_t count = pulses_ - seen_;
        if (count == 0) {
            pulses_ = 0;
            speed_ = 1;
        }
        if (count > thresholds_[0]) speed_ = 5;
        if (count > thresholds_[1]) speed_ = 10;
        if (count > thresholds_[2]) speed_ = 20;
        seen_ = pulses_;
    }

    // 1, 5, 10 or 20.
    int16_t Speed() const { return speed_; }

  private:
    Thresholds thresholds_;
    int32_t pulses_ = 0;
    int32_t seen_ = 0;
    int16_t speed_ = 1;
};
