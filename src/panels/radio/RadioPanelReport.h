#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

// The bytes and bits of the Radio Panel. Sides are 1, the upper row, and 2, the lower one; in the
// tables they stand in this order.

// Bits of the state word, which are 1 while the thing is active. The selectors' positions stand in
// the order COM1, COM2, NAV1, NAV2, ADF, DME, XPDR.
inline constexpr std::array<std::array<int32_t, 7>, 2> kRadioSelectorBits = {{
    {0x010000, 0x020000, 0x040000, 0x080000, 0x100000, 0x200000, 0x400000},
    {0x800000, 0x000100, 0x000200, 0x000400, 0x000800, 0x001000, 0x002000},
}};
inline constexpr std::array<int32_t, 2> kRadioSelectorMasks = {0x7F0000, 0x803F00};
inline constexpr std::array<int32_t, 2> kRadioButtonBits = {0x004000, 0x008000};

struct RadioKnobBits {
    int32_t clockwise;
    int32_t counterClockwise;
};
// Upper inner, upper outer, lower inner, lower outer.
inline constexpr std::array<RadioKnobBits, 4> kRadioKnobBits = {{
    {0x01, 0x02},
    {0x04, 0x08},
    {0x10, 0x20},
    {0x40, 0x80},
}};

// Display report: report id 0, five digits of each display, leftmost first, and two bytes whose
// meaning nobody knows.
inline constexpr size_t kRadioReportSize = 23;
inline constexpr size_t kRadioDigits = 5;
enum RadioDisplay : size_t { kRadioActive1, kRadioStandby1, kRadioActive2, kRadioStandby2 };
inline constexpr size_t kRadioDisplays = 4;

constexpr size_t RadioFirstByte(size_t display) { return 1 + display * kRadioDigits; }

// Digit codes besides 0 to 9.
inline constexpr uint8_t kRadioPoint = 0xD0;      // added to a digit
inline constexpr uint8_t kRadioPointOnly = 0xDF;  // dark but for the point
inline constexpr uint8_t kRadioDark = 0xFF;

namespace RadioPanelReport {

// Puts a text right-aligned into the five digits of a display; of a longer text the end. A point,
// or a comma, lights the point of the character before it; what is no digit is dark.
void EncodeDisplay(std::string_view Text, std::span<uint8_t, kRadioDigits> digits);

}  // namespace RadioPanelReport
