#pragma once

#include "toolkit/Control.h"

// What a lamp with a green and a red LED shows, on the panel and, when it is lit, in the picture.
// Yellow is both LEDs; any other number is none.
namespace LampColor {
inline constexpr Color kOff = 0;
inline constexpr Color kGreen = 0x00FF00;
inline constexpr Color kRed = 0x0000FF;
inline constexpr Color kYellow = 0x00FFFF;

constexpr bool HasGreen(Color color) { return color == kGreen || color == kYellow; }
constexpr bool HasRed(Color color) { return color == kRed || color == kYellow; }
}  // namespace LampColor
