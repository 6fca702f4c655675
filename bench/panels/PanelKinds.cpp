#include "bench/panels/PanelKinds.h"

#include <algorithm>
#include <span>

#include "base/Text.h"
#include "bench/console/Command.h"

namespace {

constexpr PanelKind kKinds[] = {
    {"radio", 0x0D05, 23, 0},
    {"multi", 0x0D06, 13, 0x010000},
    {"switch", 0x0D67, 2, 0},
    {"bip", 0x0B4E, 7, 0},
};

constexpr uint32_t kSelector = 0x1F0000;

constexpr PanelControl kControls[] = {
    {"multi", "selector", PanelAct::Set, "ALT", 0x010000, kSelector},
    {"multi", "selector", PanelAct::Set, "VS", 0x020000, kSelector},
    {"multi", "selector", PanelAct::Set, "IAS", 0x040000, kSelector},
    {"multi", "selector", PanelAct::Set, "HDG", 0x080000, kSelector},
    {"multi", "selector", PanelAct::Set, "CRS", 0x100000, kSelector},
    {"multi", "press", PanelAct::Press, "AP", 0x800000, 0x800000},
    {"multi", "press", PanelAct::Press, "HDG", 0x000100, 0x000100},
    {"multi", "press", PanelAct::Press, "NAV", 0x000200, 0x000200},
    {"multi", "press", PanelAct::Press, "IAS", 0x000400, 0x000400},
    {"multi", "press", PanelAct::Press, "ALT", 0x000800, 0x000800},
    {"multi", "press", PanelAct::Press, "VS", 0x001000, 0x001000},
    {"multi", "press", PanelAct::Press, "APR", 0x002000, 0x002000},
    {"multi", "press", PanelAct::Press, "REV", 0x004000, 0x004000},
    {"multi", "knob", PanelAct::Turn, "+", 0x200000, 0x200000},
    {"multi", "knob", PanelAct::Turn, "-", 0x400000, 0x400000},
    {"multi", "trim", PanelAct::Turn, "+", 0x000008, 0x000008},
    {"multi", "trim", PanelAct::Turn, "-", 0x000004, 0x000004},
    {"multi", "flaps", PanelAct::Set, "up", 0x000001, 0x000003},
    {"multi", "flaps", PanelAct::Set, "down", 0x000002, 0x000003},
    {"multi", "flaps", PanelAct::Set, "centre", 0, 0x000003},
    {"multi", "throttle", PanelAct::Set, "arm", 0x008000, 0x008000},
    {"multi", "throttle", PanelAct::Set, "off", 0, 0x008000},
};

constexpr std::string_view kMultiLights[] = {"AP", "HDG", "NAV", "IAS", "ALT", "VS", "APR", "REV"};
constexpr size_t kMultiReport = 13;
constexpr size_t kRow = 5;

std::string DescribeRow(std::string_view codes) {
    if (std::ranges::all_of(codes, [](char code) { return code == 0x0F; })) return "dark";
    std::string text = "\"";
    for (const char code : codes) {
        if (code >= 0 && code <= 9) {
            text += static_cast<char>('0' + code);
        } else {
            text += code == 0x0A ? ' ' : code == 0x0E ? '-' : '?';
        }
    }
    return text + '"';
}

std::string DescribeMulti(std::string_view report) {
    std::string text = "upper " + DescribeRow(report.substr(1, kRow)) + " lower " +
                       DescribeRow(report.substr(1 + kRow, kRow)) + " lights";
    const auto lights = static_cast<uint8_t>(report[1 + 2 * kRow]);
    for (size_t i = 0; i < std::size(kMultiLights); ++i) {
        if ((lights >> i & 1) != 0) text.append(" ").append(kMultiLights[i]);
    }
    return lights == 0 ? text + " none" : text;
}

}  // namespace

const PanelKind* FindPanelKind(std::string_view name) {
    const auto found = std::ranges::find(kKinds, name, &PanelKind::name);
    return found == std::end(kKinds) ? nullptr : found;
}

const PanelControl* FindPanelControl(std::string_view kind, std::string_view command,
                                     std::optional<std::string_view> position) {
    const auto found = std::ranges::find_if(kControls, [&](const PanelControl& control) {
        return control.kind == kind && control.command == command &&
               (!position || EqualNoCase(control.position, *position));
    });
    return found == std::end(kControls) ? nullptr : found;
}

std::string DescribeFeature(const PanelKind& kind, const std::string& report) {
    if (kind.name == "multi" && report.size() == kMultiReport) return DescribeMulti(report);
    return HexText(std::span(reinterpret_cast<const uint8_t*>(report.data()), report.size()));
}
