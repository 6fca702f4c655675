#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

// What the Multi Panel reads of the simulator, by name, and where each mode finds it.

// Rows of kMultiPanelNames. The first eight are the buttons' lights, AP to REV.
inline constexpr size_t kMultiPanelLightRows = 8;
enum MultiPanelRow : size_t {
    kMasterRow = 0,
    kHeadingRow = kMultiPanelLightRows,
    kSpeedRow,
    kAltitudeRow,
    kVerticalSpeedRow,
    kCourse1Row,
    kCourse2Row,
    kSpeedBlankRow,
    kSpeedOverRow,
    kSpeedUnderRow,
    kVerticalSpeedBlankRow,
    kThrottleArmRow,
    kMultiPanelRows
};

// In the order of the rows.
inline constexpr std::array<const char*, kMultiPanelRows> kMultiPanelNames = {
    "AP-MASTER",   "AP-HDG-HOLD",  "AP-NAV-HOLD", "AP-IAS-HOLD", "AP-ALT-HOLD",
    "AP-VS-HOLD",  "AP-APR-HOLD",  "AP-BC-HOLD",  "AP-HDG-VAL",  "AP-IAS-VAL",
    "AP-ALT-VAL",  "AP-VS-VAL",    "NAV1-CRS",    "NAV2-CRS",    "AP-IAS-BLANK",
    "AP-IAS-OVER", "AP-IAS-UNDER", "AP-VS-BLANK", "AT-ARM",
};

struct MultiPanelOffset {
    size_t row;
    int32_t offset;
    int32_t dataType;
};

// In the standard mode the buttons' holds stand in the order of the buttons.
inline constexpr MultiPanelOffset kStandardOffsets[] = {
    {0, 0x07BC, 4},
    {1, 0x07C8, 4},
    {2, 0x07C4, 4},
    {3, 0x07DC, 4},
    {4, 0x07D0, 4},
    {5, 0x07EC, 4},
    {6, 0x0800, 4},
    {7, 0x0804, 4},
    {kHeadingRow, 0x07CC, 3},        // 65536 is a full circle
    {kSpeedRow, 0x07E2, 2},          // knots
    {kAltitudeRow, 0x07D4, 4},       // metres x 65536
    {kVerticalSpeedRow, 0x07F2, 2},  // feet per minute
    {kCourse1Row, 0x0C4E, 3},        // degrees
    {kCourse2Row, 0x0C5E, 3},
};

// The lights come from the functions that the buttons have.
inline constexpr MultiPanelOffset kNGXOffsets[] = {
    {kCourse1Row, 0x6520, 3},  // degrees
    {kCourse2Row, 0x6522, 3},
    {kSpeedRow, 0x6524, 7},  // knots, or a Mach number below 10
    {kSpeedBlankRow, 0x6528, 1},
    {kSpeedOverRow, 0x6529, 1},
    {kSpeedUnderRow, 0x652A, 1},
    {kHeadingRow, 0x652C, 3},        // degrees
    {kAltitudeRow, 0x652E, 3},       // feet
    {kVerticalSpeedRow, 0x6530, 2},  // feet per minute
    {kVerticalSpeedBlankRow, 0x6532, 1},
    {kThrottleArmRow, 0x6535, 1},
};
inline constexpr int32_t kNGXLightType = 1;

// The Maddog gives nothing to read but what the simulator itself says of the autopilot.
inline constexpr MultiPanelOffset kMaddogOffsets[] = {{kMasterRow, 0x07BC, 4}};

inline constexpr double kFeetPerMetre = 3.28084;
