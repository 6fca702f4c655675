#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

// Parameters of the add-on's controls: what the mouse does to a switch or button.
inline constexpr int32_t kNGXLeftClick = 0x20000000;
inline constexpr auto kNGXRightClick = static_cast<int32_t>(0x80000000);

// Functions of the NGX add-on: entries 0 to 22 are the controls that run them, entries 23 to 45 the
// offsets of their lamps in the same order, 0 for a function without a lamp.
inline constexpr size_t kNGXRows = 23;

inline constexpr std::array<int32_t, 2 * kNGXRows> NGXEventTable = {
    70010,  70039,  70013,  70014,  70029,  70018,  70023,  70024,  70028,  70025,  70026,  70027,
    70034,  70036,  70035,  70037,  70038,  70019,  70517,  70015,  69971,  69972,  69973,  0x6533,
    0x6534, 0x653B, 0x653C, 0x6540, 0x653D, 0x653E, 0x653F, 0x6541, 0x6542, 0x6543, 0x6544, 0x6545,
    0x6546, 0x6547, 0x6548, 0x6537, 0,      0,      0,      0x6550, 0x6552, 0x6554,
};

// What the functions are called, by row.
inline constexpr std::array<const char*, kNGXRows> NGXFunctionNames = {
    "F/D 1",
    "F/D 2",
    "N1",
    "SPEED",
    "LNAV",
    "VNAV",
    "LVL CHG",
    "HDG SEL",
    "VOR LOC",
    "APP",
    "ALT HLD",
    "V/S",
    "CMD A",
    "CWS A",
    "CMD B",
    "CWS B",
    "AP Disengage Bar",
    "SPD INTV",
    "ALT INTV",
    "C/O",
    "A/P P/RST",
    "A/T P/RST",
    "FMC P/RST",
};
