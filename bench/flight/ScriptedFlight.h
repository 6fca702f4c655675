#pragma once

#include <string>
#include <vector>

#include "bench/flight/AddOnLegs.h"
#include "bench/flight/FlightChecks.h"

namespace bench {

// The flight that proves the road from the panels to the simulator and back, in each special mode
// and with two panels of each kind, and what comes before and after.
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
    bool FlyRadios();
    bool FlySwitches();
    bool FlyTiles();
    bool FlyAddOns();
    bool LoseSimulator();
    bool FindSimulatorAgain();
    bool Quit();

    // Another tab than the present one.
    bool SelectTab(int tab) const;
    // The button of the page that is open, which tells it from the others.
    HWND PageButton() const;
    // All but the BIP Panels.
    bool ExpectDark() const;
    // Picture of the Multi Panel's upper display in the window, once it has come to rest.
    uint64_t UpperDisplay() const;

    uint64_t connectedIcon_ = 0;
    uint64_t display080_ = 0;  // picture of the upper display
};

}  // namespace bench
