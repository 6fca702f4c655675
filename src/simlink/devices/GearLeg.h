#pragma once

#include <cstdint>

#include "simlink/devices/LampColor.h"

enum class GearLeg : uint8_t { Up, Moving, Down };

// The position of a lever, or of a leg, that is down; 0 is up.
inline constexpr int32_t kGearDownPosition = 16383;

// A leg by its position: up, down and locked, anything else on the way.
constexpr GearLeg GearLegAt(int32_t position) {
    if (position == 0) return GearLeg::Up;
    return position == kGearDownPosition ? GearLeg::Down : GearLeg::Moving;
}

// What a gear lamp shows of a leg.
constexpr Color GearLamp(GearLeg leg) {
    if (leg == GearLeg::Up) return LampColor::kOff;
    return leg == GearLeg::Down ? LampColor::kGreen : LampColor::kRed;
}
