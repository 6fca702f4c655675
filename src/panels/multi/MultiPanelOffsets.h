#pragma once

#include <cstddef>
#include <cstdint>

#include "simlink/channel/OffsetRows.h"

// What the Multi Panel reads of the simulator, by name, and where each mode finds it.

// The first eight are the buttons' lights, AP to REV.
inline constexpr size_t kMultiPanelLights = 8;

// Rows of kMultiOffsets.
namespace MultiValue {
enum : size_t {
    kMaster = 0,
    kHeading = kMultiPanelLights,
    kSpeed,
    kAltitude,
    kVerticalSpeed,
    kCourse1,
    kCourse2,
    kSpeedBlank,
    kSpeedOver,
    kSpeedUnder,
    kVerticalSpeedBlank,
    kThrottleArm
};
}  // namespace MultiValue

// In the order of the values, and then what other modes than the first one have of them. In the
// standard mode the buttons' holds stand in the order of the buttons; the lights of the NGX come
// from the functions that the buttons have; the Maddog gives nothing to read but what the simulator
// itself says of the autopilot.
inline constexpr OffsetRow kMultiOffsets[] = {
    {"AP-MASTER", 0x07BC, 4, kStandardMode},
    {"AP-HDG-HOLD", 0x07C8, 4, kStandardMode},
    {"AP-NAV-HOLD", 0x07C4, 4, kStandardMode},
    {"AP-IAS-HOLD", 0x07DC, 4, kStandardMode},
    {"AP-ALT-HOLD", 0x07D0, 4, kStandardMode},
    {"AP-VS-HOLD", 0x07EC, 4, kStandardMode},
    {"AP-APR-HOLD", 0x0800, 4, kStandardMode},
    {"AP-BC-HOLD", 0x0804, 4, kStandardMode},
    {"AP-HDG-VAL", 0x07CC, 3, kStandardMode},  // 65536 is a full circle
    {"AP-IAS-VAL", 0x07E2, 2, kStandardMode},  // knots
    {"AP-ALT-VAL", 0x07D4, 4, kStandardMode},  // metres x 65536
    {"AP-VS-VAL", 0x07F2, 2, kStandardMode},   // feet per minute
    {"NAV1-CRS", 0x0C4E, 3, kStandardMode},    // degrees
    {"NAV2-CRS", 0x0C5E, 3, kStandardMode},
    {"AP-IAS-BLANK", 0x6528, 1, kNGXMode},
    {"AP-IAS-OVER", 0x6529, 1, kNGXMode},
    {"AP-IAS-UNDER", 0x652A, 1, kNGXMode},
    {"AP-VS-BLANK", 0x6532, 1, kNGXMode},
    {"AT-ARM", 0x6535, 1, kNGXMode},

    {"NAV1-CRS", 0x6520, 3, kNGXMode},  // degrees
    {"NAV2-CRS", 0x6522, 3, kNGXMode},
    {"AP-IAS-VAL", 0x6524, 7, kNGXMode},  // knots, or a Mach number below 10
    {"AP-HDG-VAL", 0x652C, 3, kNGXMode},  // degrees
    {"AP-ALT-VAL", 0x652E, 3, kNGXMode},  // feet
    {"AP-VS-VAL", 0x6530, 2, kNGXMode},   // feet per minute

    {"AP-MASTER", 0x07BC, 4, kMaddogMode},
};

inline constexpr int32_t kNGXLightType = 1;

inline constexpr double kFeetPerMetre = 3.28084;
