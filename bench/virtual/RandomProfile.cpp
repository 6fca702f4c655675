#include "bench/virtual/RandomProfile.h"

#include "panels/bip/cBIPPanelActionHolder.h"
#include "panels/multi/cMultiPanelActionsHolder.h"
#include "panels/radio/cRadioPanelActionsHolder.h"
#include "panels/switch/cSwitchPanelActionsHolder.h"
#include "platform/virtual/VirtualPlatform.h"
#include "simlink/channel/AircraftMode.h"

namespace {

constexpr int32_t kMultiPositions = 5, kMultiButtons = 8, kRadioPositions = 7, kSwitches = 20;

// Half of all do what the control does by itself. The few joysticks make panels share buttons.
ActionRecord RandomAction(Choices& choices) {
    if (choices.OneIn(2)) return {ActionKind::Offset};
    switch (choices.Below(4)) {
        case 0:
            return {ActionKind::None};
        case 1:
            return {ActionKind::VKey, choices.Byte(), static_cast<uint8_t>(choices.Below(8)), 65};
        default:
            return {ActionKind::VButton, static_cast<uint8_t>(64 + choices.Below(9)),
                    static_cast<uint8_t>(1 + choices.Below(32)), 0};
    }
}

void Bind(Choices& choices, cMultiPanelActionsHolder& holder) {
    for (int32_t n = 1; n <= kMultiPositions; ++n) {
        holder.SetSelectorActions(n, RandomAction(choices));
        holder.SetRotUpActions(n, RandomAction(choices));
        holder.SetRotDownActions(n, RandomAction(choices));
    }
    for (int32_t n = 1; n <= kMultiButtons; ++n) {
        holder.SetButtonsActions(n, RandomAction(choices));
        holder.SetLongButtonsActions(n, RandomAction(choices));
    }
    for (int32_t n = 0; n <= 1; ++n) {
        holder.SetAutoThrottleActions(n, RandomAction(choices));
        holder.SetFlapsActions(n, RandomAction(choices));
        holder.SetTrimActions(n, RandomAction(choices));
    }
}

void Bind(Choices& choices, cRadioPanelActionsHolder& holder) {
    for (int32_t n = 1; n <= kRadioPositions; ++n) {
        holder.SetSelectorActions(n, RandomAction(choices));
        holder.SetButtonsActions(n, RandomAction(choices));
        holder.SetLongButtonsActions(n, RandomAction(choices));
        for (int32_t rotary = 0; rotary <= 3; ++rotary) {
            holder.SetRotActions(rotary % 2, rotary / 2, n, RandomAction(choices));
        }
    }
}

void Bind(Choices& choices, cSwitchPanelActionsHolder& holder) {
    for (int32_t n = 1; n <= kSwitches; ++n) {
        for (const int32_t state : {0, 1}) holder.SetSwitchActions(n, state, RandomAction(choices));
    }
}

void Bind(Choices& choices, cBIPPanelActionHolder& holder) {
    for (int16_t tile = 0; tile < kBIPTiles; ++tile) {
        const auto function = static_cast<int32_t>(choices.Below(kTileFunctions));
        if (HasContent(function)) holder.SetTileFunction(tile, function);
    }
}

template <class Holder>
void AddSections(Choices& choices, ProfileStore& profiles, int16_t panels) {
    for (int16_t panel = 1; panel <= panels; ++panel) {
        Holder holder(profiles);
        holder.Index = panel;
        Bind(choices, holder);
        static_cast<void>(holder.SaveSetup());
    }
}

}  // namespace

std::string RandomProfile(Choices& choices, uint8_t mode, int16_t panels) {
    VirtualPlatform machine;
    const std::string path = "C:\\Orvo\\Default.ini";
    machine.files.Put(path, std::string("[Common]\r\nSpecialMode=") + kSpecialModeWords[mode] +
                                "\r\n[Mine]\r\nKept=1\r\n");
    ProfileStore profiles(machine.ini, machine.files, machine.clock, "C:\\Orvo");
    AddSections<cMultiPanelActionsHolder>(choices, profiles, panels);
    AddSections<cRadioPanelActionsHolder>(choices, profiles, panels);
    AddSections<cSwitchPanelActionsHolder>(choices, profiles, panels);
    AddSections<cBIPPanelActionHolder>(choices, profiles, panels);
    return machine.files.Look(path).value();
}
