#include "simlink/ButtonPress.h"

namespace {

constexpr uint32_t kTimerButtonMs = 15;

}  // namespace

ButtonPress::ButtonPress(Clock& clock, MessageLoop& loop, const int32_t& clickThreshold)
    : clock_(clock), clickThreshold_(clickThreshold), timerButton_(loop, kTimerButtonMs) {
    timerButton_.Tick.Connect([this] { Tick(); });
}

void ButtonPress::Down(int32_t mask, uint32_t clock) {
    downTick_ = clock;
    downMask_ = mask;
    timerButton_.SetEnabled(true);
}

void ButtonPress::Tick() {
    if (Held(clock_.GetTickCount()) <= clickThreshold_) return;
    timerButton_.SetEnabled(false);  // first: the listeners may let the next press in
    LongClick.Raise(downMask_);
}
