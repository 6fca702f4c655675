#pragma once

#include <cstdint>
#include <string>

// Texts that more than one position of the Radio Panel shows.

// Puts a number into a text: `decimals` behind the point, at least `digits` before it.
void SetFixed(std::string& text, double value, int decimals, int digits = 1);

// In tenths of a mile.
inline constexpr int32_t kLongestDistance = 9999;
inline constexpr char kOutOfRange[] = " . . .";

constexpr bool DmeIsInRange(int32_t distance) {
    return distance >= 1 && distance <= kLongestDistance;
}

// From 100 miles on without the tenths; three points when it is out of range.
void AppendDmeDistance(std::string& text, int32_t distance);
