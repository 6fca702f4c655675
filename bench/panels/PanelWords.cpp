#include "bench/panels/PanelWords.h"

#include <algorithm>
#include <cstdint>
#include <span>

#include "base/Number.h"
#include "bench/console/Command.h"

namespace bench {

namespace {

constexpr std::string_view kMultiLights[] = {"AP", "HDG", "NAV", "IAS", "ALT", "VS", "APR", "REV"};
constexpr size_t kRow = 5;
constexpr size_t kTiles = 24;
constexpr size_t kTilesInRow = 8;

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

// A lamp with a green and a red LED.
std::string LampWord(bool green, bool red) {
    if (green) return red ? "yellow" : "green";
    return red ? "red" : "off";
}

std::string DescribeSwitch(std::string_view report) {
    const auto lamp = [&](int bit) {
        return LampWord((report[1] >> bit & 1) != 0, (report[1] >> (bit + 3) & 1) != 0);
    };
    return "gear nose " + lamp(0) + " left " + lamp(1) + " right " + lamp(2);
}

std::string DescribeBIP(std::string_view report) {
    std::string text;
    for (size_t tile = 0; tile < kTiles; ++tile) {
        const size_t row = tile / kTilesInRow;
        const size_t bit = tile % kTilesInRow;
        const std::string lamp =
            LampWord((report[1 + row] >> bit & 1) != 0, (report[4 + row] >> bit & 1) != 0);
        if (lamp != "off") text += ' ' + std::to_string(tile) + ' ' + lamp;
    }
    return text.empty() ? "tiles dark" : "tiles" + text;
}

constexpr struct {
    std::string_view kind;
    size_t size;
    std::string (*describe)(std::string_view report);
} kWords[] = {
    {"radio", 23, DescribeRadio},
    {"multi", 13, DescribeMulti},
    {"switch", 2, DescribeSwitch},
    {"bip", 7, DescribeBIP},
};

}  // namespace

std::string DescribeFeature(std::string_view kind, const std::string& report) {
    for (const auto& words : kWords) {
        if (words.kind == kind && words.size == report.size()) return words.describe(report);
    }
    return HexText(std::span(reinterpret_cast<const uint8_t*>(report.data()), report.size()));
}

}  // namespace bench
