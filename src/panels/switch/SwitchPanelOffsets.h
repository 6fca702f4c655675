#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "simlink/channel/OffsetRows.h"

// What the Switch Panel reads of the simulator at every tick, by name.

enum SwitchValue : size_t {
    kGearNose,
    kGearRight,
    kGearLeft,
    kMasterBattery,
    kFuelPumps,
    kSwitchValues
};

// In the order of the values.
inline constexpr std::array<OffsetRow, kSwitchValues> kSwitchOffsets = {{
    {"GEARNOSE", 0x0BEC, 4},
    {"GEARRIGHT", 0x0BF0, 4},
    {"GEARLEFT", 0x0BF4, 4},
    {"MASTERBATTERY", 0x281C, 4},
    {"FUELPUMPS", 0x3125, 1},  // a bit for each engine
}};
