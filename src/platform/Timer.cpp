#include "platform/Timer.h"

void Timer::SetInterval(uint32_t milliseconds) {
    if (milliseconds == interval_) return;
    interval_ = milliseconds;
    Stop();
    if (enabled_) Start();
}

void Timer::SetEnabled(bool enabled) {
    if (enabled == enabled_) return;
    enabled_ = enabled;
    Stop();
    if (enabled_) Start();
}

void Timer::Start() {
    if (interval_ != 0) id_ = loop_.StartTimer(interval_, [this] { Tick.Raise(); });
}

void Timer::Stop() {
    if (id_ != 0) loop_.StopTimer(id_);
    id_ = 0;
}
