#pragma once

#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <string_view>

// Whole number nearest to a value, a half to the even one; the ends of the type for values beyond
// it, 0 for what is no number.
int64_t RoundHalfEven(double value);

template <class Integer>
Integer RoundTo(double value) {
    const int64_t rounded = RoundHalfEven(value);
    if (rounded < std::numeric_limits<Integer>::min()) return std::numeric_limits<Integer>::min();
    if (rounded > std::numeric_limits<Integer>::max()) return std::numeric_limits<Integer>::max();
    return static_cast<Integer>(rounded);
}

// Reads a decimal whole number, with a sign or without and with blanks around it allowed.
// Nothing if the text is anything else or the number is outside [low, high].
std::optional<int64_t> ParseInteger(std::string_view text, int64_t low, int64_t high);

template <class Integer>
std::optional<Integer> ParseInteger(std::string_view text) {
    const auto value = ParseInteger(text, std::numeric_limits<Integer>::min(),
                                    std::numeric_limits<Integer>::max());
    if (!value) return std::nullopt;
    return static_cast<Integer>(*value);
}

// Appends a whole number in decimal with at least `digits` digits, the sign not counted:
// (-700, 4) gives "-0700".
void AppendInteger(std::string& out, int64_t value, int digits = 1);

std::string FormatInteger(int64_t value, int digits = 1);

// Appends a number with a point and exactly `decimals` digits behind it, 1 to 9, rounded half to
// even: (0.78, 3) gives "0.780". Beyond what 64 bits hold it stays at their ends.
void AppendFixed(std::string& out, double value, int decimals);

// A number with a point and as many digits as it needs, at most `decimals` behind the point.
std::string FormatPlain(double value, int decimals);
