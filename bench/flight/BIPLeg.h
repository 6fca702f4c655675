#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "bench/flight/FlightChecks.h"

namespace bench {

// Two BIP Panels, each with tiles of its own: one after the other they are lit by what the
// simulator says. The second shows the gear, and a fire in a colour of its own.
class BIPLeg : private FlightChecks {
  public:
    using FlightChecks::FlightChecks;

    // What it counts on in the profiles: the built-in one, and the one of the NGX add-on.
    static constexpr std::string_view kTiles =
        "[BIPPanel1]\r\nT0=ENG_FIRE,Red\r\nT1=ENG_1_FIRE,Red\r\nT2=ENG_2_FIRE,Yellow\r\n"
        "T3=LOW_PRESSURE,Red,19\r\nT4=OIL_PRESSURE,Yellow,20\r\nT5=ENG_OIL_TEMP,Yellow,65\r\n"
        "T6=FUEL_LOW,Yellow,15\r\nT7=FUEL_CROSS_FEED,Green\r\nT8=LEFT_FUEL_LOW,Yellow,15\r\n"
        "T9=CENTRE_FUEL_LOW,Yellow,15\r\nT10=RIGHT_FUEL_LOW,Red,60\r\nT11=DOOR_WARNING,Yellow\r\n"
        "T12=STALL_WARNING,Red\r\nT13=VAC_LOW,Yellow,60\r\nT14=PITOT_HEAT,Green\r\n"
        "T15=PARKING_BRAKES,Green\r\nT16=COMBINED_OMI,Green\r\nT17=OUTER_MARKER,Green\r\n"
        "T18=MIDDLE_MARKER,Red\r\nT19=INNER_MARKER,Yellow\r\nT20=BEACON_LIGHT,Green\r\n"
        "T21=STROBE_LIGHT,Green\r\nT22=NAV_1,Green\r\nT23=NAV,Green\r\n"
        "[BIPPanel2]\r\nT0=COMBINED_GEAR,Yellow\r\nT1=GEAR_UNSAFE,Yellow\r\nT2=GEAR_UP,Green\r\n"
        "T3=GEAR_DOWN,Green\r\nT7=ENG_FIRE,Yellow\r\n";
    static constexpr std::string_view kNGXTiles =
        "[BIPPanel1]\r\nT0=MASTER_CAUTION,Yellow\r\nT1=ENG_1_FIRE,Red\r\nT2=ENG_2_FIRE,Red\r\n"
        "T3=FUEL_LOW,Yellow,15\r\nT4=DOOR_WARNING,Yellow\r\nT5=PARKING_BRAKES,Green\r\n"
        "T8=AP_PRST\r\nT9=AT_PRST\r\nT10=FMC_PRST\r\nT16=NOSE_GEAR,Green\r\n"
        "T17=LEFT_GEAR,Green\r\nT18=RIGHT_GEAR,Green\r\nT23=GEAR_DOWN,Green\r\n"
        "[BIPPanel2]\r\nT23=FUEL_CROSS_FEED,Red\r\n";

    // The panels as they are in an aircraft that has just been loaded.
    bool ExpectStart() const;

    bool Fly();
    bool FlyNGX();

  private:
    // Tiles and their colours, "off" among them.
    using Tiles = std::map<int, const char*>;
    // Sets values of the simulator, each "OFFSET SIZE VALUE"; what changes on the first panel.
    bool Take(const std::string& news, const std::vector<std::string>& values,
              const Tiles& changes);

    Tiles tiles_;
};

}  // namespace bench
