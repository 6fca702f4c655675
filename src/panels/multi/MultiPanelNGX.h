#pragma once

#include <cstdint>

#include "platform/Clock.h"
#include "simlink/actions/EventOutput.h"

// Built-in behaviour of a Multi Panel's controls in the NGX mode: the add-on takes commands as
// controls of the simulator.
class MultiPanelNGX {
  public:
    MultiPanelNGX(EventOutput& output, Clock& clock) : output_(output), clock_(clock) {}

    // A row of NGXEventTable, 0 to 22.
    void RunFunction(uint8_t row);
    // One click of the wheel at a position of the selector, however fast the knob is turned.
    // `secondCourse`: whether CRS is that of NAV2.
    void Turn(int32_t position, bool secondCourse, bool up);
    // As often as the speed says, with a pause of 50 ms after each, which holds the thread.
    void Trim(bool up, int16_t speed);
    void MoveFlaps(bool up);
    // Clicks the add-on's switch, which the control only turns over.
    void ClickAutoThrottle();

  private:
    EventOutput& output_;
    Clock& clock_;
};
