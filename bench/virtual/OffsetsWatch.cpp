#include "bench/virtual/OffsetsWatch.h"

#include <algorithm>
#include <span>

#include "panels/bip/TileOffsets.h"
#include "panels/multi/MultiPanelOffsets.h"
#include "panels/radio/RadioPanelOffsets.h"
#include "panels/switch/SwitchPanelOffsets.h"
#include "simlink/channel/NGXEventTable.h"

namespace {

constexpr uint32_t Key(uint32_t offset, uint32_t size) { return offset << 8 | size; }

// By cOFFSET's type.
constexpr uint32_t kSizes[] = {0, 1, 2, 2, 4, 4, 8, 4, 8};

// Title, battery and avionics at every tick; and what events read: versions, the gear's kind, the
// joysticks' words, trim and flaps, the lights, and the add-on's switches.
constexpr uint32_t kAlways[] = {
    Key(0x3D00, 60), Key(0x281C, 4), Key(0x2E80, 4), Key(0x3304, 4), Key(0x3308, 4), Key(0x3308, 2),
    Key(0x060C, 2),  Key(0x3340, 4), Key(0x3344, 4), Key(0x3348, 4), Key(0x334C, 4), Key(0x3350, 4),
    Key(0x3354, 4),  Key(0x3358, 4), Key(0x335C, 4), Key(0x3360, 4), Key(0x0D0C, 2), Key(0x642F, 1),
    Key(0x6500, 1),  Key(0x6501, 1), Key(0x64FA, 1), Key(0x0BC0, 2), Key(0x3BFA, 2), Key(0x0BDC, 2),
};

}  // namespace

OffsetsWatch::OffsetsWatch(VirtualCockpit& cockpit)
    : cockpit_(cockpit),
      reading_(cockpit.machine.server.Reading.Connect(
          [this](uint32_t offset, uint32_t size) { read_.push_back(Key(offset, size)); })),
      wantedBefore_(Wanted()) {}

OffsetsWatch::Reads OffsetsWatch::Wanted() const {
    Reads wanted(std::begin(kAlways), std::end(kAlways));
    const uint8_t mode = cockpit_.program->Session.SpecialMode;
    const auto add = [&](std::span<const OffsetRow> rows, bool anyMode = false) {
        for (const OffsetRow& row : rows) {
            if (!anyMode && row.mode != kAllModes && row.mode != mode) continue;
            wanted.push_back(Key(static_cast<uint32_t>(row.offset), kSizes[row.dataType]));
        }
    };
    const PanelLists& panels = cockpit_.Window().Panels;
    if (!panels[PanelKind::Radio].empty()) add(kRadioOffsets);
    if (!panels[PanelKind::Multi].empty()) add(kMultiOffsets);
    if (!panels[PanelKind::Switch].empty()) add(kSwitchOffsets);
    // What tiles have asked for once stays.
    if (!panels[PanelKind::BIP].empty()) add(kTileOffsets, true);
    PanelLists::ForEachLogicOf(panels[PanelKind::Multi], [&](const cPanelLogic& logic) {
        if (mode != kNGXMode) return;
        const auto& actions = *static_cast<const cMultiPanelLogic&>(logic).MPActions;
        for (int32_t button = 1; button <= static_cast<int32_t>(kMultiPanelLights); ++button) {
            const size_t function = actions.NGXGetShortButtonsActions(button);
            wanted.push_back(Key(static_cast<uint32_t>(NGXEventTable[kNGXRows + function]), 1));
        }
    });
    std::ranges::sort(wanted);
    return wanted;
}

std::string OffsetsWatch::Stranger() {
    Reads wanted = Wanted();
    std::string stranger;
    for (const uint32_t key : read_) {
        if (std::ranges::binary_search(wanted, key)) continue;
        if (std::ranges::binary_search(wantedBefore_, key)) continue;
        stranger = "offset " + std::to_string(key >> 8) + " is read, with " +
                   std::to_string(key & 0xFF) + " bytes, in mode " +
                   std::to_string(cockpit_.program->Session.SpecialMode);
    }
    read_.clear();
    wantedBefore_ = std::move(wanted);
    return stranger;
}
