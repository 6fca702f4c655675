#include "bench/console/Command.h"

#include <charconv>

#include "base/Number.h"

namespace bench {

std::string_view Command::Argument(size_t index) const {
    return index < arguments.size() ? std::string_view(arguments[index]) : std::string_view();
}

Command ParseCommand(std::string_view line) {
    Command command;
    std::vector<std::string> words;
    bool quoted = false;
    bool inWord = false;
    for (const char character : line) {
        const bool blank = character == ' ' || character == '\t' || character == '\r';
        if (blank && !quoted) {
            inWord = false;
            continue;
        }
        if (!inWord) words.emplace_back();
        inWord = true;
        if (character == '"') {
            quoted = !quoted;
        } else {
            words.back() += character;
        }
    }
    if (words.empty()) return command;
    command.name = words.front();
    command.arguments.assign(words.begin() + 1, words.end());
    return command;
}

std::optional<int64_t> ParseNumber(std::string_view text, int64_t low, int64_t high) {
    if (!text.starts_with("0x") && !text.starts_with("0X")) return ParseInteger(text, low, high);
    text.remove_prefix(2);
    uint32_t value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value, 16);
    if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
    if (value < low || value > high) return std::nullopt;
    return value;
}

std::string HexText(uint64_t value, int digits) {
    static constexpr std::string_view kDigits = "0123456789ABCDEF";
    std::string text;
    for (int shift = (digits - 1) * 4; shift >= 0; shift -= 4) {
        text += kDigits[(value >> shift) & 15];
    }
    return text;
}

std::string HexText(std::span<const uint8_t> bytes) {
    std::string text;
    for (const uint8_t byte : bytes) text += HexText(byte, 2);
    return text;
}

}  // namespace bench
