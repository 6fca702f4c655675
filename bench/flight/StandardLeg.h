#pragma once

#include "bench/flight/FlightChecks.h"

// The panel in its built-in way: every position is read and turned, every other control is used.
class StandardLeg : private FlightChecks {
  public:
    using FlightChecks::FlightChecks;

    bool Fly() const { return TurnAllPositions() && PressButtons() && MoveLevers(); }

  private:
    bool TurnAllPositions() const;
    bool PressButtons() const;
    bool MoveLevers() const;
};
