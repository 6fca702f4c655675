#pragma once

#include <cstdint>

#include "platform/Clock.h"
#include "platform/MessageLoop.h"

// The program's one timed pause. Until `milliseconds` have passed it sleeps for `pause`
// milliseconds and lets pending messages run, again and again: ticks and panel events run
// meanwhile, and the caller may be re-entered. True as soon as `cancel` was given and is set; false
// when the time is up. 0 milliseconds return at once.
bool Wait(Clock& clock, MessageLoop& loop, uint32_t milliseconds, uint32_t pause,
          const bool* cancel = nullptr);
