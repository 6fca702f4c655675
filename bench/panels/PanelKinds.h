#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

namespace bench {

// What the virtual panels know of each kind of panel; a new control is a row in PanelKinds.cpp.

struct PanelKind {
    std::string_view name;
    uint16_t productId;
    uint8_t featureSize;  // bytes that reading the positions gives
    uint32_t startState;
    uint8_t shownReport;  // id of the feature reports that can be seen on it
};

inline constexpr uint16_t kPanelVendor = 0x06A3;

// How the console moves a control: it stays where it is set, it springs back after a while, or it
// gives two pulses for each step.
enum class PanelAct : uint8_t { Set, Press, Turn };

struct PanelControl {
    std::string_view kind;
    std::string_view command;
    PanelAct act;
    std::string_view position;  // for Turn the direction, "+" or "-"
    uint32_t bits;
    uint32_t mask;  // the bits that this position replaces
};

// Nothing for an unknown name.
const PanelKind* FindPanelKind(std::string_view name);

// All controls, kind by kind.
std::span<const PanelControl> PanelControls();

// The first control of this kind of panel that the command can mean, at this position or, where
// none is given, at any.
const PanelControl* FindPanelControl(std::string_view kind, std::string_view command,
                                     std::optional<std::string_view> position);

// What a flood of reports moves: the first knob of the kind, else its last switch, if any; the
// first ones are the power.
const PanelControl* FindFloodControl(std::string_view kind);

}  // namespace bench
