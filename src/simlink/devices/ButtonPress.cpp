#include "simlink/devices/ButtonPress.h"

#include <utility>

namespace {

constexpr uint32_t kTimerButtonMs = 15;
constexpr uint32_t kLateMs = 2 * kTimerButtonMs;

}  // namespace

ButtonPress::ButtonPress(Clock& clock, MessageLoop& loop, const int32_t& clickThreshold)
    : clock_(clock), clickThreshold_(clickThreshold), timerButton_(loop, kTimerButtonMs) {
    timerButton_.Tick.Connect([this] { Tick(); });
}

void ButtonPress::Down(int32_t mask, uint32_t clock) {
    downTick_ = clock;
    downMask_ = mask;
    wasLong_ = false;
    lastTick_ = clock_.GetTickCount();
    waited_ = false;
    timerButton_.SetEnabled(true);
}

void ButtonPress::Tick() {
    const uint32_t now = clock_.GetTickCount();
    const bool late = now - std::exchange(lastTick_, now) > kLateMs;
    if (Held(now) <= Threshold()) return;
    // After a busy moment the report of the release may stand behind this tick.
    if (late && !std::exchange(waited_, true)) return;
    timerButton_.SetEnabled(false);  // first: the listeners may let the next press in
    wasLong_ = true;
    LongClick.Raise(downMask_);
}
