#pragma once

#include <array>
#include <cstdint>

// The kinds of panel, in the order in which they are looked for and numbered.
enum class PanelKind : uint8_t { Radio, Multi, Switch, BIP };

inline constexpr int32_t kPanelVendorId = 0x06A3;

struct PanelIdentity {
    PanelKind kind;
    int32_t productId;
    const char* name;  // a panel's caption and, without the blank, its key: these and its number
    const char* key;
};

inline constexpr std::array<PanelIdentity, 4> kPanelIdentities = {{
    {PanelKind::Radio, 0x0D05, "Radio Panel", "RadioPanel"},
    {PanelKind::Multi, 0x0D06, "Multi Panel", "MultiPanel"},
    {PanelKind::Switch, 0x0D67, "Switch Panel", "SwitchPanel"},
    {PanelKind::BIP, 0x0B4E, "BIP Panel", "BIPPanel"},
}};
