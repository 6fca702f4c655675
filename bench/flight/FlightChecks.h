#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "bench/driver/Cockpit.h"
#include "bench/flight/FlightLog.h"

namespace bench {

// Steps of a flight, each written to the log: what is done, and what is to be seen of it within
// some seconds. They give false when it isn't.
class FlightChecks {
  public:
    FlightChecks(Cockpit& cockpit, FlightLog log) : cockpit_(cockpit), log_(log) {}

    // A command to the panel, without its name: "knob +3 60" turns multi1's knob.
    void Do(const std::string& act, const std::string& panel = "multi1") const;
    // What the panel shows, as it tells it itself.
    bool ExpectPanel(const std::string& shown, const std::string& panel = "multi1") const;
    bool ExpectStatus(size_t panel, const std::string& text,
                      uint32_t milliseconds = kPatienceMs) const;
    // The profile that the window says is in use.
    bool ExpectProfile(const std::string& name) const;
    // What has reached the simulator since it was asked last: writes ("07CC:E438 ...") of these
    // offsets alone, or controls ("70022:16384 ...").
    bool ExpectWrites(const std::vector<std::string>& offsets, const std::string& writes) const;
    bool ExpectControls(const std::string& controls) const;
    // Another aircraft is loaded, and its profile comes into force.
    bool ChangeAircraft(const std::string& title, const std::string& profile) const;

  protected:
    static constexpr uint32_t kPatienceMs = 10000;

    Cockpit& cockpit_;
    const FlightLog log_;

  private:
    std::string WritesOf(const std::vector<std::string>& offsets) const;
};

// How the rows of a Multi Panel are told: right-aligned in their five places.
std::string PanelShows(const std::string& upper, const std::string& lower,
                       const std::string& lights = "none");

inline constexpr char kMultiDark[] = "upper dark lower dark lights none";

// How the lights of a Switch Panel are told, all three of one colour.
std::string GearShows(const std::string& color);

// A row of a Radio Panel, and how two are told: each text right-aligned, an empty one is dark.
struct RadioRow {
    const char* active = "";
    const char* standby = "";
};
std::string RadioShows(const RadioRow& upper, const RadioRow& lower);

}  // namespace bench
