#pragma once

#include <array>
#include <cstdint>

#include "base/Event.h"
#include "platform/Clock.h"
#include "platform/Timer.h"

// The speed factor of a knob or wheel: how fast it is turned, from the pulses of a period. Time is
// that of the reports: however late the loop gets to them, a calm turn is a calm one. The periods
// follow each other as long as there is something to sample; a control at rest wakes nobody.
class SpeedSampler {
  public:
    // Speeds 5, 10 and 20 come with more pulses a period than these.
    using Thresholds = std::array<int32_t, 3>;

    SpeedSampler(Clock& clock, MessageLoop& loop, uint32_t periodMs, Thresholds thresholds);

    // From here on there are periods.
    void Start() { started_ = true; }
    // A period of 0 ms keeps the speed as it is.
    void SetPeriod(uint32_t milliseconds);

    // A report with a pulse, and its clock.
    void Pulse(uint32_t clock);

    // 1, 5, 10 or 20, at the clock of a report.
    int16_t SpeedAt(uint32_t clock);

    Event<int16_t> Sampled;  // a period has ended; its speed

  private:
    void Advance(uint32_t clock);
    void Sample();
    void Tick();

    Clock& clock_;
    Thresholds thresholds_;
    uint32_t period_;
    Timer timer_;  // runs only while there are periods
    bool started_ = false;
    bool resting_ = true;
    uint32_t lastSeen_ = 0;  // clock of the last report or tick
    uint32_t begin_ = 0;     // of the present period
    uint32_t lastTick_ = 0;
    int32_t pulses_ = 0;
    int32_t seen_ = 0;
    int16_t speed_ = 1;
};
