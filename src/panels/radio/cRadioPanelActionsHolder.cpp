#include "panels/radio/cRadioPanelActionsHolder.h"

#include <string>

namespace {

constexpr const char* kPositions[] = {"COM1", "COM2", "NAV1", "NAV2", "ADF", "DME", "XPDR"};

struct RotaryKey {
    const char* prefix;
    int32_t ring;
    int32_t direction;
};
constexpr RotaryKey kRotaryKeys[] = {
    {"InnRotUp", 0, 1}, {"InnRotDown", 0, 0}, {"OutRotUp", 1, 1}, {"OutRotDown", 1, 0}};

}  // namespace

cRadioPanelActionsHolder::cRadioPanelActionsHolder(ProfileStore& profiles)
    : cKeyedActionsHolder(profiles, "RadioPanel") {
    LoadDefaults();
}

BindingTable cRadioPanelActionsHolder::Keys() {
    BindingTable keys;
    keys.AddEach("SelectorAction", kPositions, selector_, ActionKind::None);
    keys.AddEach("ButtonAction", kPositions, buttons_, ActionKind::Offset);
    keys.AddEach("LongButtonAction", kPositions, longButtons_, ActionKind::Offset);
    for (int32_t position = 1; position <= kLastPosition; ++position) {
        for (const RotaryKey& key : kRotaryKeys) {
            keys.Add(std::string(key.prefix).append(kPositions[position - 1]),
                     rotary_[key.ring][key.direction][position], ActionKind::Offset);
        }
    }
    keys.AddEach("RotAcceleration", kPositions, acceleration_, int16_t{1});
    keys.Add("AltimeterUnit", AltimeterUnit, 0);
    keys.Add("DMEMode", DMEMode, 0);
    keys.Add("ADFMode", ADFMode, 0);
    constexpr BindingTable::Range kStepRange = {kLeastADFStep, kLargestADFStep};
    keys.Add("ADFInnStep", ADFInnerKnobStep, 0.1F, kStepRange);
    keys.Add("ADFOutStep", ADFOuterKnobStep, 1.0F, kStepRange);
    return keys;
}

int16_t cRadioPanelActionsHolder::GetAcceleration(int32_t Position) const {
    return acceleration_.Get(Position);
}

void cRadioPanelActionsHolder::SetAcceleration(int32_t Position, int16_t Value) {
    acceleration_.Set(Position, Value);
}

const ActionRecord& cRadioPanelActionsHolder::GetSelectorActions(int32_t Position) const {
    return selector_.Get(Position);
}

void cRadioPanelActionsHolder::SetSelectorActions(int32_t Position, const ActionRecord& Record) {
    selector_.Set(Position, Record);
}

const ActionRecord& cRadioPanelActionsHolder::GetButtonsActions(int32_t Position) const {
    return buttons_.Get(Position);
}

void cRadioPanelActionsHolder::SetButtonsActions(int32_t Position, const ActionRecord& Record) {
    buttons_.Set(Position, Record);
}

const ActionRecord& cRadioPanelActionsHolder::GetLongButtonsActions(int32_t Position) const {
    return longButtons_.Get(Position);
}

void cRadioPanelActionsHolder::SetLongButtonsActions(int32_t Position, const ActionRecord& Record) {
    longButtons_.Set(Position, Record);
}

const ActionRecord& cRadioPanelActionsHolder::GetRotActions(int32_t Rotary, int32_t Direction,
                                                            int32_t Position) const {
    return rotary_.Get(Rotary).Get(Direction).Get(Position);
}

void cRadioPanelActionsHolder::SetRotActions(int32_t Rotary, int32_t Direction, int32_t Position,
                                             const ActionRecord& Record) {
    if (!rotary_.Holds(Rotary) || !rotary_[Rotary].Holds(Direction)) return;
    rotary_[Rotary][Direction].Set(Position, Record);
}
