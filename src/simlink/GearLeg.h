#pragma once

#include <cstdint>

#include "simlink/LampColor.h"

enum class GearLeg : uint8_t { Up, Moving, Down };

// A leg by its position: 0 is up, 16383 down and locked, anything else on the way.
constexpr GearLeg GearLegAt(int32_t position) {
    if (position == 0) return GearLeg::Up;
    return position == 16383 ? GearLeg::Down : GearLeg::Moving;
}

// What a gear lamp shows of a leg.
constexpr Color GearLamp(GearLeg leg) {
    if (leg == GearLeg::Up) return LampColor::kOff;
    return leg == GearLeg::Down ? LampColor::kGreen : LampColor::kRed;
}
