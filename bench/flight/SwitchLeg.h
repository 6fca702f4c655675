#pragma once

#include <string>

#include "bench/flight/FlightChecks.h"

namespace bench {

// Two Switch Panels beside the others: the first has its built-in way but for one switch; the
// second has only selector and lever, and starts the selected engine alone.
class SwitchLeg : private FlightChecks {
  public:
    using FlightChecks::FlightChecks;

    // What it counts on in the profile.
    static std::string Bindings();

    // The lights of both panels, all three in this colour.
    bool ExpectLights(const std::string& color) const;

    bool Fly() const { return TakeOver() && LosePower() && ThrowAll() && Start() && MoveGear(); }
    bool FlyNGX() const;

  private:
    // Moves a control and looks for what reaches the simulator of it.
    bool Throw(const std::string& act, const std::string& writes,
               const std::string& panel = "switch1") const;
    // The other panels, as the leg before has left them, or all of them dark.
    bool ExpectOthers(bool dark) const;
    bool TakeOver() const;
    bool LosePower() const;
    bool ThrowAll() const;
    bool Start() const;
    bool MoveGear() const;
};

}  // namespace bench
