#pragma once

#include <cstdint>

#include "panels/multi/ctlMultiPanel.h"
#include "simlink/actions/EventOutput.h"

// A Multi Panel in the Maddog mode. The add-on publishes nothing: the panel keeps, shows and sends
// values of its own, which may differ from what the add-on has until they have been turned.
// Positions and buttons are those of MultiPanelNumber.h; other numbers do nothing.
class MultiPanelMaddog {
  public:
    MultiPanelMaddog(EventOutput& output, ctlMultiPanel& control)
        : output_(output), control_(control) {}

    // The values with which the mode begins.
    void Start() { values_ = {}; }
    // A tick has read whether the autopilot is on. The rows are written by what changes them.
    void Refresh(bool autopilotOn);
    // The selector has reached a position.
    void ShowPosition(int32_t position);

    // What the simulator says of the autopilot, where no tick has told it yet.
    void SetAutopilot(bool on) { values_.MDAutopilotOn = on; }

    void SM_MADDOG_ButtonClick(int32_t Button);
    void SM_MADDOG_ButtonLongClick(int32_t Button, int32_t position);
    // Direction 1 is clockwise. `secondCourse`: whether CRS is that of NAV2.
    void SM_MADDOG_Rotary(int16_t Direction, int16_t Speed, int32_t position, bool secondCourse);
    void SM_MADDOG_AutoThrottle(int16_t State);

  private:
    struct Values {
        bool MDAutopilotOn = false;
        bool MDMachMode = false;
        int32_t MDAltitude = 0;       // feet
        int32_t MDVerticalSpeed = 0;  // feet per minute
        int32_t MDSpeed = 100;        // knots
        int32_t MDMach = 500;         // Mach x 1000
        int32_t MDHeading = 0;        // degrees
        int32_t MDCourse = 0;         // degrees
        int32_t MDNavMode = 1;        // next parameter of the REV button's control
    };

    void ToggleAutopilot();
    void ToggleMach(int32_t position);
    void TurnSpeed(int32_t step);

    EventOutput& output_;
    ctlMultiPanel& control_;
    Values values_;
};
