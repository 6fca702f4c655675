#include "base/Number.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdlib>

#include "base/Text.h"

namespace {

// 2^63 as a double; the type's own largest value isn't one.
constexpr double kEnd = 9223372036854775808.0;

std::string_view WithoutPlus(std::string_view text) {
    const bool signedTwice = text.size() > 1 && text[1] == '-';
    return text.size() > 1 && text[0] == '+' && !signedTwice ? text.substr(1) : text;
}

}  // namespace

int64_t RoundHalfEven(double value) {
    if (std::isnan(value)) return 0;
    if (value >= kEnd) return std::numeric_limits<int64_t>::max();
    if (value <= -kEnd) return std::numeric_limits<int64_t>::min();
    const double below = std::floor(value);
    const double rest = value - below;
    const auto whole = static_cast<int64_t>(below);
    if (rest > 0.5 || (rest == 0.5 && whole % 2 != 0)) return whole + 1;
    return whole;
}

int64_t RoundHalfAway(double value, int64_t scale) {
    if (std::isnan(value)) return 0;
    const double magnitude = std::abs(value);
    const auto factor = static_cast<double>(scale);
    const double product = magnitude * factor;
    if (product >= kEnd) {
        return value < 0 ? std::numeric_limits<int64_t>::min()
                         : std::numeric_limits<int64_t>::max();
    }
    const double below = std::floor(product);
    auto whole = static_cast<int64_t>(below);
    // A product that isn't exact may look like a half that it doesn't reach.
    const bool reaches = std::fma(magnitude, factor, -product) >= 0;
    if (product - below > 0.5 || (product - below == 0.5 && reaches)) ++whole;
    return value < 0 ? -whole : whole;
}

std::optional<int64_t> ParseInteger(std::string_view text, int64_t low, int64_t high) {
    text = WithoutPlus(Trim(text));
    int64_t value = 0;
    const char* end = text.data() + text.size();
    const auto result = std::from_chars(text.data(), end, value);
    if (result.ec != std::errc{} || result.ptr != end || value < low || value > high) {
        return std::nullopt;
    }
    return value;
}

std::optional<int64_t> ParseDigits(std::string_view text, int64_t low, int64_t high) {
    const auto isDigit = [](char character) { return character >= '0' && character <= '9'; };
    if (!std::ranges::all_of(text, isDigit)) return std::nullopt;
    return ParseInteger(text, low, high);
}

void AppendInteger(std::string& out, int64_t value, int digits) {
    char buffer[24];
    const auto magnitude =
        value < 0 ? 0 - static_cast<uint64_t>(value) : static_cast<uint64_t>(value);
    const auto result = std::to_chars(buffer, buffer + sizeof buffer, magnitude);
    const auto length = static_cast<int>(result.ptr - buffer);
    if (value < 0) out += '-';
    if (digits > length) out.append(static_cast<size_t>(digits - length), '0');
    out.append(buffer, result.ptr);
}

std::string FormatInteger(int64_t value, int digits) {
    std::string out;
    AppendInteger(out, value, digits);
    return out;
}

void AppendFixed(std::string& out, double value, int decimals, int digits) {
    int64_t scale = 1;
    for (int i = 0; i < decimals; ++i) scale *= 10;
    const int64_t scaled = RoundHalfAway(value, scale);
    if (decimals == 0) {
        AppendInteger(out, scaled, digits);
        return;
    }
    if (scaled < 0) out += '-';
    AppendInteger(out, std::abs(scaled / scale), digits);
    out += '.';
    AppendInteger(out, std::abs(scaled % scale), decimals);
}

std::optional<float> ParseFloat(std::string_view text, float low, float high) {
    std::string number(WithoutPlus(Trim(text)));
    std::ranges::replace(number, ',', '.');
    float value = 0;
    const char* end = number.data() + number.size();
    const auto result = std::from_chars(number.data(), end, value, std::chars_format::fixed);
    const bool inside = value >= low && value <= high;
    if (result.ec != std::errc{} || result.ptr != end || !inside) return std::nullopt;
    return value;
}

std::string FormatFloat(float value) {
    char buffer[64];
    const auto result =
        std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::fixed);
    return {buffer, result.ptr};
}

std::string FormatPlain(double value, int decimals) {
    char buffer[400];
    const auto result =
        std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::fixed, decimals);
    std::string out(buffer, result.ptr);
    if (out.find('.') != std::string::npos) {
        while (out.back() == '0') out.pop_back();
        if (out.back() == '.') out.pop_back();
    }
    return out;
}
