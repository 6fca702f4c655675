#pragma once

#include <cstdint>

// The numbers by which the program knows the Switch Panel's positions and switches.
namespace SwitchNumber {
enum : int32_t {
    kSelectorOff = 1,
    kSelectorR,
    kSelectorL,
    kSelectorBoth,
    kSelectorStart,
    kBat,
    kAlt,
    kAvionics,
    kFuelPump,
    kDeIce,
    kPitot,
    kCowl,
    kPanel,
    kBeacon,
    kNav,
    kStrobe,
    kTaxi,
    kLanding,
    kGearUp,
    kGearDown
};
}  // namespace SwitchNumber
