#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace bench {

// One line of a bench program's console: a name and its arguments, parted by blanks. An argument in
// double quotes keeps its blanks and may be empty.
struct Command {
    std::string name;
    std::vector<std::string> arguments;

    // Empty for an argument that wasn't given.
    std::string_view Argument(size_t index) const;
};

Command ParseCommand(std::string_view line);

// Decimal, or hexadecimal behind 0x; a sign only before decimal digits. Nothing for anything else
// and for numbers outside [low, high].
std::optional<int64_t> ParseNumber(std::string_view text, int64_t low, int64_t high);

// Two capital digits a byte, nothing between them.
std::string HexText(std::span<const uint8_t> bytes);
std::string HexText(uint64_t value, int digits);

}  // namespace bench
