#pragma once

#include "bench/flight/FlightChecks.h"

namespace bench {

// The profile follows the aircraft, to the two add-ons and back.
class AddOnLegs : private FlightChecks {
  public:
    using FlightChecks::FlightChecks;

    // The files that the flight needs, for before Orvo's start.
    void WriteProfiles() const;

    bool Fly() const { return FlyNGX() && FlyMaddog() && ComeBack(); }

  private:
    void SetUpNGX() const;
    bool FlyNGX() const;
    bool FlyMaddog() const;
    bool ComeBack() const;
};

}  // namespace bench
