#pragma once

#include <cstdint>

// Makes steps of a knob's or wheel's pulses: one detent is two pulses, and a pulse is a bit that
// comes on and goes off again.
class PulsePair {
  public:
    explicit PulsePair(uint32_t windowMs) : window_(windowMs) {}

    // Takes one report: whether it has the pulse bit, and its clock. True when it makes a step: the
    // second report without the bit that comes within the window after one with it. A report that
    // comes for another reason counts too.
    bool Report(bool bit, uint32_t clock) {
        if (bit) {
            tick_ = clock;
            return false;
        }
        if (clock - tick_ >= window_) return false;
        armed_ = !armed_;
        return !armed_;
    }

  private:
    uint32_t window_;
    uint32_t tick_ = 0;
    bool armed_ = false;
};
