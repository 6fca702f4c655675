#include "simlink/devices/SpeedSampler.h"

SpeedSampler::SpeedSampler(MessageLoop& loop, uint32_t periodMs, Thresholds thresholds)
    : thresholds_(thresholds), timer_(loop, periodMs) {
    timer_.Tick.Connect([this] { Sample(); });
}

void SpeedSampler::Start() {
    started_ = true;
    timer_.SetEnabled(true);
}

void SpeedSampler::Pulse() {
    ++pulses_;
    if (started_) timer_.SetEnabled(true);
}

// A few pulses leave the speed as it is; none bring it back to 1.
void SpeedSampler::Sample() {
    const int32_t count = pulses_ - seen_;
    if (count == 0) {
        pulses_ = 0;
        speed_ = 1;
        timer_.SetEnabled(false);
    }
    if (count > thresholds_[0]) speed_ = 5;
    if (count > thresholds_[1]) speed_ = 10;
    if (count > thresholds_[2]) speed_ = 20;
    seen_ = pulses_;
    Sampled.Raise(speed_);
}
