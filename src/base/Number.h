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

// The same, but of decimal digits alone.
std::optional<int64_t> ParseDigits(std::string_view text, int64_t low, int64_t high);

// Appends a whole number in decimal with at least `digits` digits, the sign not counted:
// (-700, 4) gives "-0700".
void AppendInteger(std::string& out, int64_t value, int digits = 1);

std::string FormatInteger(int64_t value, int digits = 1);

// Whole number nearest to value x scale, a half away from zero; decided on the exact product. The
// ends of the type for values beyond it, 0 for what is no number.
int64_t RoundHalfAway(double value, int64_t scale);

// Appends a number with exactly `decimals` digits behind its point, 0 to 9, and at least `digits`
// before it, rounded half away from zero: (0.78, 3) gives "0.780", (345.25, 1, 4) "0345.3". Without
// decimals there is no point. Beyond what 64 bits hold it stays at their ends.
void AppendFixed(std::string& out, double value, int decimals, int digits = 1);

// Reads a decimal number, with a sign or without and with blanks around it allowed, into the
// nearest float. The point may be a comma, as files from other countries have it. Nothing if the
// text is anything else or the number is outside [low, high].
std::optional<float> ParseFloat(std::string_view text, float low, float high);

// The shortest decimal number that reads back as the same float: "0.1".
std::string FormatFloat(float value);

// A number with a point and as many digits as it needs, at most `decimals` behind the point.
std::string FormatPlain(double value, int decimals);
