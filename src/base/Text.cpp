#include "base/Text.h"

#include <algorithm>

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
