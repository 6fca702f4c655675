#pragma once

#include <array>
#include <cstdint>

// The radios that are tuned, and their bands.

// MHz, or kHz for the ADF; `high` is the first value beyond the band.
struct RadioBand {
    float low;
    float high;
};

inline constexpr RadioBand kComBand = {118, 137};
inline constexpr RadioBand kNavBand = {108, 118};
inline constexpr RadioBand kAdfBand = {100, 1800};

// A radio with an active and a standby frequency.
struct RadioChannel {
    uint8_t swap;  // bit at kRadioSwap
    float innerStep;
    float outerStep;
    RadioBand band;
    bool thousandths;       // the digits held stop before the channel's last one
    int32_t maddogControl;  // tunes the active frequency in the Maddog; 0 for none
};

// In the order of the selector's positions, from 1 COM1.
inline constexpr std::array<RadioChannel, 4> kRadioChannels = {{
    {8, 0.025F, 1, kComBand, true, 0},
    {4, 0.025F, 1, kComBand, true, 0},
    {2, 0.05F, 1, kNavBand, false, 69633},
    {1, 0.05F, 1, kNavBand, false, 69634},
}};

inline constexpr int32_t kRadioSwap = 0x3123;
