#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

// What the Radio Panel reads of the simulator, by name.

enum RadioRow : size_t {
    kComNavRow = 0,  // the active and the standby frequency of each channel
    kAdf1MainRow = 8,
    kAdf1ExtensionRow,
    kAdf2MainRow,
    kAdf2ExtensionRow,
    kDme1DistanceRow,
    kDme2DistanceRow,
    kDme1SpeedRow,
    kDme2SpeedRow,
    kDme1TimeRow,
    kDme2TimeRow,
    kQnhRow,
    kTransponderRow,
    kRadioRows
};

struct RadioOffset {
    const char* name;
    int32_t offset;
};

inline constexpr int32_t kRadioOffsetType = 3;  // 16-bit words, most of them BCD
inline constexpr std::array<RadioOffset, kRadioRows> kRadioOffsets = {{
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

// Only in the NGX, where 0 says that the altimeter is set in inHg.
inline constexpr RadioOffset kNGXUnit = {"NGX-IN-HPA", 0x6516};
inline constexpr int32_t kNGXUnitType = 1;

// A radio that has an active and a standby frequency. They stand in the order of the selector's
// positions, from 1 COM1.
struct RadioChannel {
    uint8_t swap;     // bit at kRadioSwap
    float innerStep;  // MHz
    float outerStep;
    float low;  // the band, MHz: low up to, but without, high
    float high;
    bool thousandths;       // the digits stop before the channel's last one
    int32_t maddogControl;  // tunes the active frequency in the Maddog; 0 for none
};
inline constexpr std::array<RadioChannel, 4> kRadioChannels = {{
    {8, 0.025F, 1, 118, 137, true, 0},
    {4, 0.025F, 1, 118, 137, true, 0},
    {2, 0.05F, 1, 108, 118, false, 69633},
    {1, 0.05F, 1, 108, 118, false, 69634},
}};
inline constexpr int32_t kRadioSwap = 0x3123;

inline constexpr size_t ActiveRow(size_t channel) { return kComNavRow + 2 * channel; }
inline constexpr size_t StandbyRow(size_t channel) { return ActiveRow(channel) + 1; }
