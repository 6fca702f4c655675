#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

// What the Multi Panel reads of the simulator in the standard mode.

struct MultiPanelOffset {
    const char* name;
    int32_t offset;
    int32_t dataType;
};

inline constexpr std::array<MultiPanelOffset, 14> kMultiPanelOffsets = {{
    {"AP-MASTER", 0x07BC, 4},
    {"AP-HDG-HOLD", 0x07C8, 4},
    {"AP-NAV-HOLD", 0x07C4, 4},
    {"AP-IAS-HOLD", 0x07DC, 4},
    {"AP-ALT-HOLD", 0x07D0, 4},
    {"AP-VS-HOLD", 0x07EC, 4},
    {"AP-APR-HOLD", 0x0800, 4},
    {"AP-BC-HOLD", 0x0804, 4},
    {"AP-HDG-VAL", 0x07CC, 3},  // 65536 is a full circle
    {"AP-IAS-VAL", 0x07E2, 2},  // knots
    {"AP-ALT-VAL", 0x07D4, 4},  // metres x 65536
    {"AP-VS-VAL", 0x07F2, 2},   // feet per minute
    {"NAV1-CRS", 0x0C4E, 3},    // degrees
    {"NAV2-CRS", 0x0C5E, 3},
}};

// The first eight rows are the buttons' lights, AP to REV.
inline constexpr size_t kMultiPanelLightRows = 8;
inline constexpr size_t kHeadingRow = 8;
inline constexpr size_t kSpeedRow = 9;
inline constexpr size_t kAltitudeRow = 10;
inline constexpr size_t kVerticalSpeedRow = 11;
inline constexpr size_t kCourse1Row = 12;
inline constexpr size_t kCourse2Row = 13;

inline constexpr double kFeetPerMetre = 3.28084;
