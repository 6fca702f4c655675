#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "simlink/channel/OffsetRows.h"

// What the Radio Panel reads of the simulator, by name.

// Places in kRadioOffsets. Of the pairs the second station's comes right behind the first one's,
// but for the ADF, where it comes two further on.
enum RadioValue : size_t {
    kFirstActive = 0,  // active and standby frequency of each channel
    kAdfMain = 8,
    kAdfExtension,
    kDmeDistance = 12,
    kDmeSpeed = 14,
    kDmeTime = 16,
    kQnh = 18,
    kTransponder,
    kNGXUnit,
    kRadioValues
};

constexpr size_t ActiveOf(size_t channel) { return kFirstActive + 2 * channel; }
constexpr size_t StandbyOf(size_t channel) { return ActiveOf(channel) + 1; }
constexpr size_t AdfMainOf(size_t adf) { return kAdfMain + 2 * adf; }
constexpr size_t AdfExtensionOf(size_t adf) { return kAdfExtension + 2 * adf; }

inline constexpr int32_t kRadioOffsetType = 3;  // 16-bit words, most of them BCD
inline constexpr std::array<OffsetRow, kRadioValues> kRadioOffsets = {{
    {"COM1ACTIVE", 0x034E, kRadioOffsetType},
    {"COM1STANDBY", 0x311A, kRadioOffsetType},
    {"COM2ACTIVE", 0x3118, kRadioOffsetType},
    {"COM2STANDBY", 0x311C, kRadioOffsetType},
    {"NAV1ACTIVE", 0x0350, kRadioOffsetType},
    {"NAV1STANDBY", 0x311E, kRadioOffsetType},
    {"NAV2ACTIVE", 0x0352, kRadioOffsetType},
    {"NAV2STANDBY", 0x3120, kRadioOffsetType},
    {"ADF1MAIN", 0x034C, kRadioOffsetType},
    {"ADF1EXT", 0x0356, kRadioOffsetType},
    {"ADF2MAIN", 0x02D4, kRadioOffsetType},
    {"ADF2EXT", 0x02D6, kRadioOffsetType},
    {"DME1DIST", 0x0300, kRadioOffsetType},  // tenths of a mile
    {"DME2DIST", 0x0306, kRadioOffsetType},
    {"DME1SPEED", 0x0302, kRadioOffsetType},  // tenths of a knot
    {"DME2SPEED", 0x0308, kRadioOffsetType},
    {"DME1TIME", 0x0304, kRadioOffsetType},  // tenths of a second
    {"DME2TIME", 0x030A, kRadioOffsetType},
    {"QNH", 0x0330, kRadioOffsetType},  // sixteenths of a hPa
    {"XPDR", 0x0354, kRadioOffsetType},
    {"NGX-IN-HPA", 0x6516, 1, kNGXMode},  // 0: the altimeter is set in inHg
}};

inline constexpr float kQnhPerHPa = 16;
