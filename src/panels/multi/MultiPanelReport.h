#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string_view>

// The bytes and bits of the Multi Panel.

// State word: a bit is 1 while the thing is active.
namespace MultiPanelBit {
inline constexpr int32_t kFlapsUp = 0x000001;
inline constexpr int32_t kFlapsDown = 0x000002;
inline constexpr int32_t kTrimDownPulse = 0x000004;
inline constexpr int32_t kTrimUpPulse = 0x000008;
inline constexpr int32_t kButtonHDG = 0x000100;
inline constexpr int32_t kButtonNAV = 0x000200;
inline constexpr int32_t kButtonIAS = 0x000400;
inline constexpr int32_t kButtonALT = 0x000800;
inline constexpr int32_t kButtonVS = 0x001000;
inline constexpr int32_t kButtonAPR = 0x002000;
inline constexpr int32_t kButtonREV = 0x004000;
inline constexpr int32_t kAutoThrottleArm = 0x008000;
inline constexpr int32_t kSelectorALT = 0x010000;
inline constexpr int32_t kSelectorVS = 0x020000;
inline constexpr int32_t kSelectorIAS = 0x040000;
inline constexpr int32_t kSelectorHDG = 0x080000;
inline constexpr int32_t kSelectorCRS = 0x100000;
inline constexpr int32_t kKnobClockwisePulse = 0x200000;
inline constexpr int32_t kKnobCounterClockwisePulse = 0x400000;
inline constexpr int32_t kButtonAP = 0x800000;
}  // namespace MultiPanelBit

struct MultiPanelButton {
    int32_t mask;
    uint8_t light;  // its bit in the lights byte
    const char* caption;
};

// In the order of the panel, which is that of the lights.
inline constexpr std::array<MultiPanelButton, 8> kMultiPanelButtons = {{
    {MultiPanelBit::kButtonAP, 1, "AP"},
    {MultiPanelBit::kButtonHDG, 2, "HDG"},
    {MultiPanelBit::kButtonNAV, 4, "NAV"},
    {MultiPanelBit::kButtonIAS, 8, "IAS"},
    {MultiPanelBit::kButtonALT, 16, "ALT"},
    {MultiPanelBit::kButtonVS, 32, "VS"},
    {MultiPanelBit::kButtonAPR, 64, "APR"},
    {MultiPanelBit::kButtonREV, 128, "REV"},
}};

// Display report: report id 0, five digits of the upper and five of the lower display, leftmost
// first, the lights byte, 0.
inline constexpr size_t kMultiReportSize = 13;
inline constexpr size_t kMultiUpperDigits = 1;
inline constexpr size_t kMultiLowerDigits = 6;
inline constexpr size_t kMultiLights = 11;

// Digit codes besides 0 to 9.
inline constexpr uint8_t kMultiBlank = 0x0A;
inline constexpr uint8_t kMultiMinus = 0x0E;
inline constexpr uint8_t kMultiDark = 0x0F;

// Puts a text right-aligned into the five digits of a display; of a longer text the last five
// characters. Digits and "-" show, everything else is blank.
void EncodeDisplay(std::string_view Text, std::span<uint8_t, 5> digits);
