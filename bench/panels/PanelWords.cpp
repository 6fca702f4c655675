#include "bench/panels/PanelWords.h"

#include <algorithm>
#include <cstdint>
#include <span>

#include "base/Number.h"
#include "bench/console/Command.h"

namespace {

constexpr std::string_view kMultiLights[] = {"AP", "HDG", "NAV", "IAS", "ALT", "VS", "APR", "REV"};
constexpr size_t kRow = 5;

// What one place of a row shows. A code that the panel doesn't have is a question mark.
std::string MultiPlace(uint8_t code) {
    if (code <= 9) return FormatInteger(code);
    return code == 0x0A ? " " : code == 0x0E ? "-" : "?";
}

std::string RadioPlace(uint8_t code) {
    const bool point = code >> 4 == 0xD;
    const int digit = point ? code - 0xD0 : code;
    const bool blank = code == 0xFF || code == 0xDF;
    std::string text = digit <= 9 ? FormatInteger(digit) : blank ? " " : "?";
    return point ? text + '.' : text;
}

std::string DescribeRow(std::string_view codes, char dark, std::string (*place)(uint8_t code)) {
    if (std::ranges::count(codes, dark) == std::ssize(codes)) return "dark";
    std::string text = "\"";
    for (const char code : codes) text += place(static_cast<uint8_t>(code));
    return text + '"';
}

std::string DescribeMulti(std::string_view report) {
    const auto row = [&](size_t n) {
        return DescribeRow(report.substr(1 + n * kRow, kRow), '\x0F', MultiPlace);
    };
    std::string text = "upper " + row(0) + " lower " + row(1) + " lights";
    const auto lights = static_cast<uint8_t>(report[1 + 2 * kRow]);
    for (size_t i = 0; i < std::size(kMultiLights); ++i) {
        if ((lights >> i & 1) != 0) text.append(" ").append(kMultiLights[i]);
    }
    return lights == 0 ? text + " none" : text;
}

std::string DescribeRadio(std::string_view report) {
    const auto row = [&](size_t n) {
        return DescribeRow(report.substr(1 + n * kRow, kRow), '\xFF', RadioPlace);
    };
    return "upper " + row(0) + ' ' + row(1) + " lower " + row(2) + ' ' + row(3);
}

constexpr struct {
    std::string_view kind;
    size_t size;
    std::string (*describe)(std::string_view report);
} kWords[] = {
    {"radio", 23, DescribeRadio},
    {"multi", 13, DescribeMulti},
};

}  // namespace

std::string DescribeFeature(std::string_view kind, const std::string& report) {
    for (const auto& words : kWords) {
        if (words.kind == kind && words.size == report.size()) return words.describe(report);
    }
    return HexText(std::span(reinterpret_cast<const uint8_t*>(report.data()), report.size()));
}
