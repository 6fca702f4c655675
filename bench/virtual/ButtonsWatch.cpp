#include "bench/virtual/ButtonsWatch.h"

#include <algorithm>

#include "base/Bytes.h"
#include "core/PositionTables.h"
#include "panels/switch/SwitchNumber.h"

namespace {

constexpr uint32_t kFirstWord = 0x3340;
constexpr size_t kButtonsOfWord = 32;
constexpr uint8_t kFirstJoystick = 64;
constexpr uint64_t kPress = 20;  // ticks, with what waits before it

}  // namespace

ButtonsWatch::ButtonsWatch(VirtualCockpit& cockpit)
    : cockpit_(cockpit),
      writing_(cockpit.machine.server.Written.Connect(
          [this](uint32_t offset, std::span<const uint8_t> bytes) { TakeWrite(offset, bytes); })) {
    for (const PanelIdentity& identity : kPanelIdentities) {
        for (const auto& unit : cockpit.Window().Panels[identity.kind]) Follow(*unit);
    }
}

// What the bindings say at this moment is what the control holds; without a session, nothing.
void ButtonsWatch::Follow(PanelUnit& unit) {
    if (unit.kind == PanelKind::Radio) FollowRadio(unit);
    if (unit.kind == PanelKind::Multi) FollowMulti(unit);
    if (unit.kind == PanelKind::Switch) FollowSwitch(unit);
}

// A button of a row, from its click until it comes up.
void ButtonsWatch::FollowRadio(PanelUnit& unit) {
    auto& control = static_cast<ctlRadioPanel&>(*unit.control);
    const cSession& session = cockpit_.program->Session;
    for (size_t side = 0; side < kRadioButtonBits.size(); ++side) {
        Holder& holder = AddHolder();
        int32_t& position = positions_.emplace_back(0);
        const int32_t bit = kRadioButtonBits[side];
        follows_.emplace_back(control.SelectorChange.Connect(
            [side, &position, &session](int16_t row, int32_t bits, int32_t) {
                if (row != static_cast<int16_t>(side + 1) || !session.FSConnected) return;
                position = RadioSelectorPosition(bits);
            }));
        const auto clicked = [&unit, &session, &holder, &position, bit](int32_t button,
                                                                        bool isLong) {
            if (button != bit || !unit.logic || !session.FSConnected) return;
            const auto& actions = *static_cast<cRadioPanelLogic&>(*unit.logic).RPActions;
            const ActionRecord& record = isLong ? actions.GetLongButtonsActions(position)
                                                : actions.GetButtonsActions(position);
            if (record.FSEvent == ActionKind::VButton) holder = record;
        };
        follows_.emplace_back(
            control.ButtonClick.Connect([clicked](int32_t button) { clicked(button, false); }));
        follows_.emplace_back(
            control.ButtonLongClick.Connect([clicked](int32_t button) { clicked(button, true); }));
        follows_.emplace_back(control.ButtonUp.Connect([bit, &holder](int32_t button) {
            if (button == bit) holder.reset();
        }));
    }
}

// The positions of the selector and of the throttle's switch.
void ButtonsWatch::FollowMulti(PanelUnit& unit) {
    auto& control = static_cast<ctlMultiPanel&>(*unit.control);
    const auto actions = [&unit,
                          &session = cockpit_.program->Session]() -> cMultiPanelActionsHolder* {
        const bool holds = unit.logic && session.FSConnected && session.SpecialMode != kMaddogMode;
        return holds ? static_cast<cMultiPanelLogic&>(*unit.logic).MPActions.get() : nullptr;
    };
    follows_.emplace_back(
        control.SelectorChange.Connect([actions, &holder = AddHolder()](int32_t bits, int32_t) {
            holder.reset();
            if (const auto* bound = actions()) {
                holder = bound->GetSelectorActions(MultiSelectorPosition(bits));
            }
        }));
    follows_.emplace_back(
        control.AutoThrottleChange.Connect([actions, &holder = AddHolder()](bool armed) {
            holder.reset();
            const auto* bound = actions();
            if (bound && armed) holder = bound->GetAutoThrottleActions(1);
        }));
}

// The positions of the gear lever.
void ButtonsWatch::FollowSwitch(PanelUnit& unit) {
    auto& control = static_cast<ctlSwitchPanel&>(*unit.control);
    const auto moved = [&unit, &session = cockpit_.program->Session,
                        &holder = AddHolder()](int32_t position) {
        holder.reset();
        if (!unit.logic || !session.FSConnected || session.SpecialMode == kNGXMode) return;
        const auto& logic = static_cast<cSwitchPanelLogic&>(*unit.logic);
        holder = logic.SPActions->GetSwitchActions(position, 1);
    };
    follows_.emplace_back(control.GearUp.Connect([moved] { moved(SwitchNumber::kGearUp); }));
    follows_.emplace_back(control.GearDown.Connect([moved] { moved(SwitchNumber::kGearDown); }));
}

void ButtonsWatch::TakeWrite(uint32_t offset, std::span<const uint8_t> bytes) {
    if (offset < kFirstWord || bytes.size() != 4) return;
    const size_t first = (offset - kFirstWord) / 4 * kButtonsOfWord;
    if (first + kButtonsOfWord > buttons_.size()) return;
    const uint32_t word = LoadLE32(bytes.data());
    for (size_t bit = 0; bit < kButtonsOfWord; ++bit) {
        Button& button = buttons_[first + bit];
        const bool down = (word >> bit & 1) != 0;
        if (down && !button.down) button.since = ticks_;
        button.down = down;
    }
}

bool ButtonsWatch::IsHeld(size_t button) const {
    const ActionRecord record{ActionKind::VButton,
                              static_cast<uint8_t>(kFirstJoystick + button / kButtonsOfWord),
                              static_cast<uint8_t>(button % kButtonsOfWord + 1), 0};
    return std::ranges::any_of(
        holders_, [&record](const Holder& holder) { return holder && holder->SameButton(record); });
}

bool ButtonsWatch::AllHeld() const {
    for (size_t i = 0; i < buttons_.size(); ++i) {
        if (buttons_[i].down && !IsHeld(i)) return false;
    }
    return true;
}

std::string ButtonsWatch::LeftDown() {
    ++ticks_;
    const cSession& session = cockpit_.program->Session;
    const bool couldLetGo = session.FSConnected && session.Acts.Empty();
    for (size_t i = 0; i < buttons_.size(); ++i) {
        if (!buttons_[i].down) continue;
        if (!couldLetGo || IsHeld(i)) buttons_[i].since = ticks_;
        if (ticks_ - buttons_[i].since < kPress) continue;
        return "button " + std::to_string(i % kButtonsOfWord + 1) + " of joystick " +
               std::to_string(kFirstJoystick + i / kButtonsOfWord) + " is left down";
    }
    return {};
}
