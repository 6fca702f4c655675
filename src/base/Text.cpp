#include "base/Text.h"

#include <algorithm>
#include <iterator>

namespace {

// What Windows-1252 has from 0x80 to 0x9F; 0 where it has nothing.
constexpr char16_t kUpperControls[] = {
    0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0,      0x017D, 0,      0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};

char FromUtf16Unit(char16_t unit) {
    if (unit < 0x80 || (unit >= 0xA0 && unit <= 0xFF)) return static_cast<char>(unit);
    const auto* found = std::find(std::begin(kUpperControls), std::end(kUpperControls), unit);
    if (found == std::end(kUpperControls)) return '?';
    return static_cast<char>(0x80 + (found - std::begin(kUpperControls)));
}

}  // namespace

char ToLower(char character) {
    const auto code = static_cast<unsigned char>(character);
    const bool ascii = code >= 'A' && code <= 'Z';
    const bool latin = code >= 0xC0 && code <= 0xDE && code != 0xD7;
    if (ascii || latin) return static_cast<char>(code + 0x20);
    // The letters that Windows-1252 has between 0x80 and 0x9F.
    if (code == 0x8A || code == 0x8C || code == 0x8E) return static_cast<char>(code + 0x10);
    if (code == 0x9F) return static_cast<char>(0xFF);
    return character;
}

char ToUpper(char character) {
    const auto code = static_cast<unsigned char>(character);
    // What has an upper case is the lower case of it.
    for (const int distance : {0x20, 0x10, 0x60}) {
        const auto upper = static_cast<char>(code - distance);
        if (code >= distance && upper != character && ToLower(upper) == character) return upper;
    }
    return character;
}

std::string ToLower(std::string_view text) {
    std::string out(text);
    std::transform(out.begin(), out.end(), out.begin(), [](char c) { return ToLower(c); });
    return out;
}

bool EqualNoCase(std::string_view a, std::string_view b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](char x, char y) { return ToLower(x) == ToLower(y); });
}

std::string_view Trim(std::string_view text) {
    const auto first = text.find_first_not_of(" \t");
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

std::vector<std::string_view> Split(std::string_view text, char separator) {
    std::vector<std::string_view> pieces;
    for (size_t end; (end = text.find(separator)) != std::string_view::npos;) {
        pieces.push_back(text.substr(0, end));
        text.remove_prefix(end + 1);
    }
    pieces.push_back(text);
    return pieces;
}

std::string FromUtf16(std::string_view bytes) {
    std::string text;
    text.reserve(bytes.size() / 2);
    for (size_t at = 0; at + 1 < bytes.size(); at += 2) {
        const auto low = static_cast<unsigned char>(bytes[at]);
        const auto high = static_cast<unsigned char>(bytes[at + 1]);
        text += FromUtf16Unit(static_cast<char16_t>(low | high << 8));
    }
    return text;
}
