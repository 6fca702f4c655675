#pragma once

#include <cstdint>
#include <string_view>

// Values of SpecialMode: which aircraft's own autopilot the panels work against.
inline constexpr uint8_t kStandardMode = 0;
inline constexpr uint8_t kMaddogMode = 1;
inline constexpr uint8_t kNGXMode = 2;

// How they are called in a profile. Any other word is the standard mode, and the case doesn't
// count.
inline constexpr const char* kSpecialModeWords[] = {"", "MADDOG", "NGX"};
uint8_t SpecialModeNamed(std::string_view word);
