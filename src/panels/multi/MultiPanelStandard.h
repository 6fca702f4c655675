#pragma once

#include <cstdint>

#include "simlink/channel/cSession.h"

// Built-in behaviour of a Multi Panel's buttons, wheel and levers in the standard mode. What starts
// from a value of the simulator is done once the simulator gives it.
class MultiPanelStandard {
  public:
    explicit MultiPanelStandard(cSession& session) : session_(session) {}

    // Turns the hold of a button over, 1 AP to 8 REV.
    void ToggleHold(int32_t button);
    // Moves the elevator trim, whose ends are at 16383.
    void Trim(double step);
    // One notch.
    void MoveFlaps(bool up);
    void ArmAutoThrottle(bool armed);

  private:
    bool TryToggleHold(int32_t button);
    bool TryTrim(double step);
    bool TryMoveFlaps(bool up);

    cSession& session_;
};
