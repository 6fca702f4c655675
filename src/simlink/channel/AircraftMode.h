#pragma once

#include <cstdint>

// Values of SpecialMode: which aircraft's own autopilot the panels work against.
inline constexpr uint8_t kStandardMode = 0;
inline constexpr uint8_t kMaddogMode = 1;
inline constexpr uint8_t kNGXMode = 2;
