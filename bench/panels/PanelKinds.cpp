#include "bench/panels/PanelKinds.h"

#include <algorithm>

#include "base/Text.h"

namespace bench {

namespace {

constexpr PanelKind kKinds[] = {
    {"radio", 0x0D05, 23, 0x810000, 0},
    {"multi", 0x0D06, 13, 0x010000, 0},
    {"switch", 0x0D67, 2, 0x002008, 0},
    {"bip", 0x0B4E, 7, 0, 0xB8},
};

constexpr uint32_t kSelector = 0x1F0000;
constexpr uint32_t kUpper = 0x7F0000;
constexpr uint32_t kLower = 0x803F00;
constexpr uint32_t kEngines = 0x00E003;
constexpr uint32_t kGear = 0x00000C;

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
    {"radio", "upper", PanelAct::Set, "COM1", 0x010000, kUpper},
    {"radio", "upper", PanelAct::Set, "COM2", 0x020000, kUpper},
    {"radio", "upper", PanelAct::Set, "NAV1", 0x040000, kUpper},
    {"radio", "upper", PanelAct::Set, "NAV2", 0x080000, kUpper},
    {"radio", "upper", PanelAct::Set, "ADF", 0x100000, kUpper},
    {"radio", "upper", PanelAct::Set, "DME", 0x200000, kUpper},
    {"radio", "upper", PanelAct::Set, "XPDR", 0x400000, kUpper},
    {"radio", "lower", PanelAct::Set, "COM1", 0x800000, kLower},
    {"radio", "lower", PanelAct::Set, "COM2", 0x000100, kLower},
    {"radio", "lower", PanelAct::Set, "NAV1", 0x000200, kLower},
    {"radio", "lower", PanelAct::Set, "NAV2", 0x000400, kLower},
    {"radio", "lower", PanelAct::Set, "ADF", 0x000800, kLower},
    {"radio", "lower", PanelAct::Set, "DME", 0x001000, kLower},
    {"radio", "lower", PanelAct::Set, "XPDR", 0x002000, kLower},
    {"radio", "press", PanelAct::Press, "upper", 0x004000, 0x004000},
    {"radio", "press", PanelAct::Press, "lower", 0x008000, 0x008000},
    {"radio", "upper-inner", PanelAct::Turn, "+", 0x000001, 0x000001},
    {"radio", "upper-inner", PanelAct::Turn, "-", 0x000002, 0x000002},
    {"radio", "upper-outer", PanelAct::Turn, "+", 0x000004, 0x000004},
    {"radio", "upper-outer", PanelAct::Turn, "-", 0x000008, 0x000008},
    {"radio", "lower-inner", PanelAct::Turn, "+", 0x000010, 0x000010},
    {"radio", "lower-inner", PanelAct::Turn, "-", 0x000020, 0x000020},
    {"radio", "lower-outer", PanelAct::Turn, "+", 0x000040, 0x000040},
    {"radio", "lower-outer", PanelAct::Turn, "-", 0x000080, 0x000080},
    {"switch", "selector", PanelAct::Set, "OFF", 0x002000, kEngines},
    {"switch", "selector", PanelAct::Set, "R", 0x004000, kEngines},
    {"switch", "selector", PanelAct::Set, "L", 0x008000, kEngines},
    {"switch", "selector", PanelAct::Set, "BOTH", 0x000001, kEngines},
    {"switch", "selector", PanelAct::Set, "START", 0x000002, kEngines},
    {"switch", "bat", PanelAct::Set, "on", 0x010000, 0x010000},
    {"switch", "bat", PanelAct::Set, "off", 0, 0x010000},
    {"switch", "alt", PanelAct::Set, "on", 0x020000, 0x020000},
    {"switch", "alt", PanelAct::Set, "off", 0, 0x020000},
    {"switch", "avionics", PanelAct::Set, "on", 0x040000, 0x040000},
    {"switch", "avionics", PanelAct::Set, "off", 0, 0x040000},
    {"switch", "fuelpump", PanelAct::Set, "on", 0x080000, 0x080000},
    {"switch", "fuelpump", PanelAct::Set, "off", 0, 0x080000},
    {"switch", "deice", PanelAct::Set, "on", 0x100000, 0x100000},
    {"switch", "deice", PanelAct::Set, "off", 0, 0x100000},
    {"switch", "pitot", PanelAct::Set, "on", 0x200000, 0x200000},
    {"switch", "pitot", PanelAct::Set, "off", 0, 0x200000},
    {"switch", "cowl", PanelAct::Set, "on", 0x400000, 0x400000},
    {"switch", "cowl", PanelAct::Set, "off", 0, 0x400000},
    {"switch", "panel", PanelAct::Set, "on", 0x800000, 0x800000},
    {"switch", "panel", PanelAct::Set, "off", 0, 0x800000},
    {"switch", "beacon", PanelAct::Set, "on", 0x000100, 0x000100},
    {"switch", "beacon", PanelAct::Set, "off", 0, 0x000100},
    {"switch", "nav", PanelAct::Set, "on", 0x000200, 0x000200},
    {"switch", "nav", PanelAct::Set, "off", 0, 0x000200},
    {"switch", "strobe", PanelAct::Set, "on", 0x000400, 0x000400},
    {"switch", "strobe", PanelAct::Set, "off", 0, 0x000400},
    {"switch", "taxi", PanelAct::Set, "on", 0x000800, 0x000800},
    {"switch", "taxi", PanelAct::Set, "off", 0, 0x000800},
    {"switch", "landing", PanelAct::Set, "on", 0x001000, 0x001000},
    {"switch", "landing", PanelAct::Set, "off", 0, 0x001000},
    {"switch", "gear", PanelAct::Set, "up", 0x000004, kGear},
    {"switch", "gear", PanelAct::Set, "down", 0x000008, kGear},
    {"switch", "gear", PanelAct::Set, "between", 0, kGear},
};

}  // namespace

const PanelKind* FindPanelKind(std::string_view name) {
    const auto found = std::ranges::find(kKinds, name, &PanelKind::name);
    return found == std::end(kKinds) ? nullptr : found;
}

std::span<const PanelControl> PanelControls() { return kControls; }

const PanelControl* FindPanelControl(std::string_view kind, std::string_view command,
                                     std::optional<std::string_view> position) {
    const auto found = std::ranges::find_if(kControls, [&](const PanelControl& control) {
        return control.kind == kind && control.command == command &&
               (!position || EqualNoCase(control.position, *position));
    });
    return found == std::end(kControls) ? nullptr : found;
}

const PanelControl* FindFloodControl(std::string_view kind) {
    const PanelControl* control = nullptr;
    for (const PanelControl& each : kControls) {
        if (each.kind != kind) continue;
        if (each.act == PanelAct::Turn) return &each;
        if (each.position == "on") control = &each;
    }
    return control;
}

}  // namespace bench
