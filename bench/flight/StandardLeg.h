#pragma once

#include "bench/flight/FlightChecks.h"

namespace bench {

// The Multi Panel in its built-in way: every position is read and turned, every other control is
// used, and beside it a second one.
class StandardLeg : private FlightChecks {
  public:
    using FlightChecks::FlightChecks;

    bool Fly() const {
        return TurnAllPositions() && UseSecondPanel() && PressButtons() && MoveLevers();
    }

  private:
    bool TurnAllPositions() const;
    bool UseSecondPanel() const;
    bool PressButtons() const;
    bool MoveLevers() const;
};

}  // namespace bench
