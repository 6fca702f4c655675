#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

// What the Switch Panel reads of the simulator at every tick, by name.

enum SwitchValue : size_t {
    kGearNose,
    kGearRight,
    kGearLeft,
    kMasterBattery,
    kFuelPumps,
    kSwitchValues
};

struct SwitchPanelOffset {
    const char* name;
    int32_t offset;
    int32_t dataType;
};

// In the order of the values.
inline constexpr std::array<SwitchPanelOffset, kSwitchValues> kSwitchOffsets = {{
    {"GEARNOSE", 0x0BEC, 4},
    {"GEARRIGHT", 0x0BF0, 4},
    {"GEARLEFT", 0x0BF4, 4},
    {"MASTERBATTERY", 0x281C, 4},
    {"FUELPUMPS", 0x3125, 1},  // a bit for each engine
}};
