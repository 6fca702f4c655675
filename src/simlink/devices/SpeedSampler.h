#pragma once

#include <array>
#include <cstdint>

#include "base/Event.h"
#include "platform/Timer.h"

// The speed factor of a knob or wheel: how fast it is turned, from the pulses of a period. The
// periods follow each other as long as there is something to sample; a control at rest wakes
// nobody.
class SpeedSampler {
  public:
    // Speeds 5, 10 and 20 come with more pulses a period than these.
    using Thresholds = std::array<int32_t, 3>;

    SpeedSampler(MessageLoop& loop, uint32_t periodMs, Thresholds thresholds);

    // From here on there are periods.
    void Start();
    // A period of 0 ms keeps the speed as it is.
    void SetPeriod(uint32_t milliseconds) { timer_.SetInterval(milliseconds); }

    void Pulse();

    // 1, 5, 10 or 20.
    int16_t Speed() const { return speed_; }

    Event<int16_t> Sampled;  // a period has ended; its speed

  private:
    void Sample();

    Thresholds thresholds_;
    Timer timer_;
    bool started_ = false;
    int32_t pulses_ = 0;
    int32_t seen_ = 0;
    int16_t speed_ = 1;
};
