#pragma once

#include <string>

#include "simlink/cSession.h"

// What the program knows of the aircraft that the simulator flies. It outlives a session: coming
// back to the same aircraft changes nothing.
class AircraftBinding {
  public:
    explicit AircraftBinding(cSession& session) : session_(session) {}

    // Takes the title as the aircraft in use, and learns of the simulator what kind of gear it has.
    void BindAircraft(std::string title);

    // Empty until the first session brings a title.
    const std::string& CurrentAircraft() const { return currentAircraft_; }

  private:
    cSession& session_;
    std::string currentAircraft_;
};
