#pragma once

#include <string>
#include <vector>

#include "bench/flight/AddOnLegs.h"
#include "bench/flight/FlightChecks.h"

// The flight that proves the road from the panel to the simulator and back, in each mode of the
// panel, and what comes before and after.
class ScriptedFlight : private FlightChecks {
  public:
    using FlightChecks::FlightChecks;

    // True when every step went as it should; else the log tells the first that didn't.
    bool Fly();

  private:
    bool Start();
    bool FindSimulator();
    bool OpenWindow();
    bool FlyStandard();
    bool FlyAddOns();
    bool LoseSimulator();
    bool FindSimulatorAgain();
    bool Quit();

    bool SelectTab(int tab) const;
    // Picture of the upper display in the window, once it has come to rest.
    uint64_t UpperDisplay() const;

    uint64_t connectedIcon_ = 0;
    uint64_t display080_ = 0;  // picture of the upper display
};
