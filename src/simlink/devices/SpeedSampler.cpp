#include "simlink/devices/SpeedSampler.h"

#include <utility>

namespace {

// So much later than its period a tick shows that the loop was busy.
constexpr uint32_t kLateMs = 20;

}  // namespace

SpeedSampler::SpeedSampler(Clock& clock, MessageLoop& loop, uint32_t periodMs,
                           Thresholds thresholds)
    : clock_(clock), thresholds_(thresholds), period_(periodMs), timer_(loop, periodMs) {
    timer_.Tick.Connect([this] { Tick(); });
}

void SpeedSampler::SetPeriod(uint32_t milliseconds) {
    if (milliseconds == period_) return;
    period_ = milliseconds;
    begin_ = lastSeen_;
    lastTick_ = clock_.GetTickCount();
    timer_.SetInterval(milliseconds);
}

void SpeedSampler::Pulse(uint32_t clock) {
    Advance(clock);
    ++pulses_;
    if (!started_ || !resting_) return;
    resting_ = false;
    begin_ = clock;
    lastTick_ = clock_.GetTickCount();
    timer_.SetEnabled(true);
}

int16_t SpeedSampler::SpeedAt(uint32_t clock) {
    Advance(clock);
    return speed_;
}

// Ends the periods that are over at this clock: the one that the pulses fell into, and one without
// any where more time has gone by.
void SpeedSampler::Advance(uint32_t clock) {
    lastSeen_ = clock;
    const auto since = static_cast<int32_t>(clock - begin_);
    if (resting_ || period_ == 0 || since < static_cast<int32_t>(period_)) return;
    const uint32_t periods = static_cast<uint32_t>(since) / period_;
    begin_ += periods * period_;
    Sample();
    if (periods > 1 && !resting_) Sample();
}

// A few pulses leave the speed as it is; none bring it back to 1.
void SpeedSampler::Sample() {
    const int32_t count = pulses_ - seen_;
    if (count == 0) {
        pulses_ = 0;
        speed_ = 1;
        resting_ = true;
        timer_.SetEnabled(false);
    }
    if (count > thresholds_[0]) speed_ = 5;
    if (count > thresholds_[1]) speed_ = 10;
    if (count > thresholds_[2]) speed_ = 20;
    seen_ = pulses_;
    Sampled.Raise(speed_);
}

// After a busy moment reports of a period that is over may stand behind this tick.
void SpeedSampler::Tick() {
    const uint32_t now = clock_.GetTickCount();
    const bool late = now - std::exchange(lastTick_, now) > period_ + kLateMs;
    if (!late) Advance(now);
}
