#include "platform/Wait.h"

bool Wait(Clock& clock, MessageLoop& loop, uint32_t milliseconds, uint32_t pause,
          const bool* cancel) {
    const uint32_t start = clock.GetTickCount();
    while (clock.GetTickCount() - start < milliseconds) {
        clock.Sleep(pause);
        loop.RunPending();
        if (cancel && *cancel) return true;
    }
    return false;
}
