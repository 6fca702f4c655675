#pragma once

#include "bench/driver/Cockpit.h"
#include "bench/flight/FlightLog.h"

namespace bench {

// The flight that proves the road from the panels to the simulator and back, in each special mode
// and with two panels of each kind, and what comes before and after. True when every step went as
// it should; else the log tells the first that didn't.
bool FlyScriptedFlight(Cockpit& cockpit, const FlightLog& log);

// Tiles for two BIP Panels, as lines of a profile.
extern const char kFlightTiles[];

}  // namespace bench
