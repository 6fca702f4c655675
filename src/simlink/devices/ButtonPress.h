#pragma once

#include <algorithm>
#include <cstdint>

#include "base/Event.h"
#include "platform/Clock.h"
#include "platform/Timer.h"

// Tells short presses of a panel's buttons from long ones. All buttons of a panel share one: a
// press of a second button while the first is held restarts the time and takes its place.
class ButtonPress {
  public:
    // `clickThreshold` (milliseconds) is read at each use; below 1 it works as 1.
    ButtonPress(Clock& clock, MessageLoop& loop, const int32_t& clickThreshold);

    // The clock is that of the report that tells it.
    void Down(int32_t mask, uint32_t clock);
    // True when the press was a short one, that is a click.
    bool Up(uint32_t clock) const { return !wasLong_ && Held(clock) < Threshold(); }
    // No long click comes of the present press any more.
    void Cancel() { timerButton_.SetEnabled(false); }

    // The button that was pressed last has been held for longer than the threshold. May come after
    // the release, of a press that ended at the threshold before the timer's next tick.
    Event<int32_t> LongClick;

  private:
    void Tick();
    int32_t Threshold() const { return std::max(clickThreshold_, 1); }
    int64_t Held(uint32_t clock) const { return static_cast<uint32_t>(clock - downTick_); }

    Clock& clock_;
    const int32_t& clickThreshold_;
    uint32_t downTick_ = 0;
    int32_t downMask_ = 0;
    bool wasLong_ = false;  // the present press has been told as a long one
    uint32_t lastTick_ = 0;
    bool waited_ = false;
    Timer timerButton_;
};
