#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

// The bytes and bits of the Switch Panel.

// Bits of the state word, which are 1 while the position is taken or the switch is on.
namespace SwitchPanelBit {
inline constexpr int32_t kSelectorOff = 0x002000;
inline constexpr int32_t kSelectorR = 0x004000;
inline constexpr int32_t kSelectorL = 0x008000;
inline constexpr int32_t kSelectorBoth = 0x000001;
inline constexpr int32_t kSelectorStart = 0x000002;
inline constexpr int32_t kGearUp = 0x000004;
inline constexpr int32_t kGearDown = 0x000008;
}  // namespace SwitchPanelBit

inline constexpr int32_t kSwitchSelectorMask = 0xE003;

// BAT, ALT, AVIONICS, FUEL PUMP, DE-ICE, PITOT, COWL, PANEL, BEACON, NAV, STROBE, TAXI, LANDING.
inline constexpr std::array<int32_t, 13> kSwitchToggleBits = {
    0x010000, 0x020000, 0x040000, 0x080000, 0x100000, 0x200000, 0x400000,
    0x800000, 0x000100, 0x000200, 0x000400, 0x000800, 0x001000,
};

// Lights report: report id 0, and the bits of the gear lights.
inline constexpr size_t kSwitchLightsSize = 2;
struct GearLightBits {
    uint8_t green;
    uint8_t red;
};
// Nose, left, right.
inline constexpr std::array<GearLightBits, 3> kGearLightBits = {
    {{0x01, 0x08}, {0x02, 0x10}, {0x04, 0x20}}};
