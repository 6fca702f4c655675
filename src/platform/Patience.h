#pragma once

#include <algorithm>
#include <cstdint>
#include <functional>

#include "platform/Clock.h"

// For what another program may be in the way of for a moment, as of a file that it holds: tries
// again until it works. All that one of these does waits `limitMs` milliseconds together and no
// more. It holds the thread: so it is for the start and the end of the program, and short for what
// the user asks for.
class Patience {
  public:
    Patience(Clock& clock, uint32_t limitMs) : clock_(clock), leftMs_(limitMs) {}

    // At least once. True as soon as `attempt` gives true; false when the time is up.
    [[nodiscard]] bool Try(const std::function<bool()>& attempt) {
        while (!attempt()) {
            if (leftMs_ == 0) return false;
            const uint32_t pause = std::min(leftMs_, kPauseMs);
            clock_.Sleep(pause);
            leftMs_ -= pause;
        }
        return true;
    }

  private:
    static constexpr uint32_t kPauseMs = 25;

    Clock& clock_;
    uint32_t leftMs_;
};
