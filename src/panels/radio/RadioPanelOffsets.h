#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

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
    kRadioValues
};

constexpr size_t ActiveOf(size_t channel) { return kFirstActive + 2 * channel; }
constexpr size_t StandbyOf(size_t channel) { return ActiveOf(channel) + 1; }
constexpr size_t AdfMainOf(size_t adf) { return kAdfMain + 2 * adf; }
constexpr size_t AdfExtensionOf(size_t adf) { return kAdfExtension + 2 * adf; }

struct RadioOffset {
    const char* name;
    int32_t offset;
};

inline constexpr int32_t kRadioOffsetType = 3;  // 16-bit words, most of them BCD
inline constexpr std::array<RadioOffset, kRadioValues> kRadioOffsets = {{
    {"COM1ACTIVE", 0x034E},  {"COM1STANDBY", 0x311A}, {"COM2ACTIVE", 0x3118},
    {"COM2STANDBY", 0x311C}, {"NAV1ACTIVE", 0x0350},  {"NAV1STANDBY", 0x311E},
    {"NAV2ACTIVE", 0x0352},  {"NAV2STANDBY", 0x3120}, {"ADF1MAIN", 0x034C},
    {"ADF1EXT", 0x0356},     {"ADF2MAIN", 0x02D4},    {"ADF2EXT", 0x02D6},
    {"DME1DIST", 0x0300},                            // tenths of a mile
    {"DME2DIST", 0x0306},    {"DME1SPEED", 0x0302},  // tenths of a knot
    {"DME2SPEED", 0x0308},   {"DME1TIME", 0x0304},   // tenths of a second
    {"DME2TIME", 0x030A},    {"QNH", 0x0330},        // sixteenths of a hPa
    {"XPDR", 0x0354},
}};

inline constexpr float kQnhPerHPa = 16;

// Only in the NGX, where 0 says that the altimeter is set in inHg.
inline constexpr RadioOffset kNGXUnit = {"NGX-IN-HPA", 0x6516};
inline constexpr int32_t kNGXUnitType = 1;
