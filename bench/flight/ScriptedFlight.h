#pragma once

#include <string>
#include <vector>

#include "bench/driver/Cockpit.h"
#include "bench/flight/FlightLog.h"

// The flight that proves the road from a knob to the simulator and back to the panel.
class ScriptedFlight {
  public:
    ScriptedFlight(Cockpit& cockpit, const FlightLog& log) : cockpit_(cockpit), log_(log) {}

    // True when every step went as it should; else the log tells the first that didn't.
    bool Fly();

  private:
    bool Start();
    bool FindSimulator();
    bool OpenWindow();
    bool TurnHeading();
    bool LoseSimulator();
    bool FindSimulatorAgain();
    bool Quit();

    bool ExpectStatus(size_t panel, const std::string& text);
    bool ExpectPanel(const std::string& shown);
    // Picture of the upper display in the window, once it has come to rest.
    uint64_t UpperDisplay();
    bool ExpectHeadings(const std::vector<int>& degrees);

    Cockpit& cockpit_;
    const FlightLog& log_;
    uint64_t connectedIcon_ = 0;
    uint64_t display080_ = 0;  // picture of the upper display
};
