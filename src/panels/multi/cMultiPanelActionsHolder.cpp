#include "panels/multi/cMultiPanelActionsHolder.h"

#include <cstddef>
#include <string>

#include "base/Number.h"
#include "simlink/NGXEventTable.h"

namespace {

constexpr const char* kPositions[] = {"", "ALT", "VS", "IAS", "HDG", "CRS"};
constexpr const char* kButtons[] = {"", "AP", "HDG", "NAV", "IAS", "ALT", "VS", "APR", "REV"};
constexpr const char* kSwitchSides[] = {"OFF", "ARM"};
constexpr const char* kDirections[] = {"DOWN", "UP"};

constexpr uint8_t kNGXShortDefaults[] = {0, 12, 7, 4, 3, 10, 11, 9, 8};
constexpr uint8_t kNGXLongDefaults[] = {0, 14, 13, 5, 2, 18, 6, 0, 1};
constexpr BindingTable::Range kNGXRange = {0, kNGXRows - 1};
constexpr BindingTable::Range kCourseRange = {0, 2};

// A table whose index 0 is no control of the panel has one more place than the panel has controls.
template <class Value, size_t Size>
bool Holds(const std::array<Value, Size>&, int32_t index) {
    constexpr int32_t kFirst = Size > 2 ? 1 : 0;
    return index >= kFirst && static_cast<size_t>(index) < Size;
}

template <class Value, size_t Size>
const Value& Get(const std::array<Value, Size>& table, int32_t index) {
    static const Value kNothing{};
    return Holds(table, index) ? table[static_cast<size_t>(index)] : kNothing;
}

template <class Value, size_t Size>
void Set(std::array<Value, Size>& table, int32_t index, const Value& value) {
    if (Holds(table, index)) table[static_cast<size_t>(index)] = value;
}

template <size_t Size>
void AddActions(BindingTable& keys, const std::string& prefix, const char* const (&names)[Size],
                std::array<ActionRecord, Size>& records, ActionKind standard) {
    for (size_t i = 0; i < Size; ++i) {
        if (*names[i]) keys.Add(prefix + names[i], records[i], standard);
    }
}

template <size_t Size>
void AddNGXRows(BindingTable& keys, const char* suffix, std::array<uint8_t, Size>& rows,
                const uint8_t (&standards)[Size]) {
    for (size_t i = 1; i < Size; ++i) {
        keys.Add(std::string("NGX") + kButtons[i] + suffix, rows[i], standards[i], kNGXRange);
    }
}

}  // namespace

cMultiPanelActionsHolder::cMultiPanelActionsHolder(ProfileStore& profiles) : profiles_(profiles) {
    LoadDefaults();
}

// In the order in which the keys stand in the file.
BindingTable cMultiPanelActionsHolder::Keys() {
    BindingTable keys;
    AddActions(keys, "SelectorAction", kPositions, selector_, ActionKind::None);
    AddActions(keys, "RotUpAction", kPositions, rotUp_, ActionKind::Offset);
    AddActions(keys, "RotDownAction", kPositions, rotDown_, ActionKind::Offset);
    AddActions(keys, "ButtonAction", kButtons, buttons_, ActionKind::Offset);
    AddActions(keys, "LongButtonAction", kButtons, longButtons_, ActionKind::Offset);
    AddActions(keys, "AutoThrottleAction", kSwitchSides, autoThrottle_, ActionKind::Offset);
    AddActions(keys, "FlapsAction", kDirections, flaps_, ActionKind::Offset);
    AddActions(keys, "TrimAction", kDirections, trim_, ActionKind::Offset);
    for (size_t i = 1; i < rotAcceleration_.size(); ++i) {
        keys.Add(std::string("RotaryAcceleration") + kPositions[i], rotAcceleration_[i], 1);
    }
    AddNGXRows(keys, "Short", ngxShort_, kNGXShortDefaults);
    AddNGXRows(keys, "Long", ngxLong_, kNGXLongDefaults);
    keys.Add("CourseSel", CourseSel, 1, kCourseRange);
    keys.Add("TrimAcceleration", TrimAcceleration, 1);
    keys.Add("TrimSensitivity", TrimSensitivity, 4);
    keys.AddFlag("ReverseTrim", ReverseTrim);
    keys.AddFlag("ReverseFlaps", ReverseFlaps);
    return keys;
}

void cMultiPanelActionsHolder::LoadDefaults() { Keys().SetDefaults(); }

void cMultiPanelActionsHolder::LoadSetup() {
    Keys().Load(profiles_, "MultiPanel" + FormatInteger(Index));
}

void cMultiPanelActionsHolder::SaveSetup() {
    Keys().Save(profiles_, "MultiPanel" + FormatInteger(Index));
}

int16_t cMultiPanelActionsHolder::GetRotAcceleration(int32_t Position) const {
    return Get(rotAcceleration_, Position);
}

void cMultiPanelActionsHolder::SetRotAcceleration(int32_t Position, int16_t Value) {
    Set(rotAcceleration_, Position, Value);
}

const ActionRecord& cMultiPanelActionsHolder::GetSelectorActions(int32_t Position) const {
    return Get(selector_, Position);
}

void cMultiPanelActionsHolder::SetSelectorActions(int32_t Position, const ActionRecord& Record) {
    Set(selector_, Position, Record);
}

const ActionRecord& cMultiPanelActionsHolder::GetButtonsActions(int32_t Button) const {
    return Get(buttons_, Button);
}

void cMultiPanelActionsHolder::SetButtonsActions(int32_t Button, const ActionRecord& Record) {
    Set(buttons_, Button, Record);
}

const ActionRecord& cMultiPanelActionsHolder::GetLongButtonsActions(int32_t Button) const {
    return Get(longButtons_, Button);
}

void cMultiPanelActionsHolder::SetLongButtonsActions(int32_t Button, const ActionRecord& Record) {
    Set(longButtons_, Button, Record);
}

const ActionRecord& cMultiPanelActionsHolder::GetRotUpActions(int32_t Position) const {
    return Get(rotUp_, Position);
}

void cMultiPanelActionsHolder::SetRotUpActions(int32_t Position, const ActionRecord& Record) {
    Set(rotUp_, Position, Record);
}

const ActionRecord& cMultiPanelActionsHolder::GetRotDownActions(int32_t Position) const {
    return Get(rotDown_, Position);
}

void cMultiPanelActionsHolder::SetRotDownActions(int32_t Position, const ActionRecord& Record) {
    Set(rotDown_, Position, Record);
}

const ActionRecord& cMultiPanelActionsHolder::GetAutoThrottleActions(int32_t Side) const {
    return Get(autoThrottle_, Side);
}

void cMultiPanelActionsHolder::SetAutoThrottleActions(int32_t Side, const ActionRecord& Record) {
    Set(autoThrottle_, Side, Record);
}

const ActionRecord& cMultiPanelActionsHolder::GetFlapsActions(int32_t Direction) const {
    return Get(flaps_, Direction);
}

void cMultiPanelActionsHolder::SetFlapsActions(int32_t Direction, const ActionRecord& Record) {
    Set(flaps_, Direction, Record);
}

const ActionRecord& cMultiPanelActionsHolder::GetTrimActions(int32_t Direction) const {
    return Get(trim_, Direction);
}

void cMultiPanelActionsHolder::SetTrimActions(int32_t Direction, const ActionRecord& Record) {
    Set(trim_, Direction, Record);
}

uint8_t cMultiPanelActionsHolder::NGXGetShortButtonsActions(int32_t Button) const {
    return Get(ngxShort_, Button);
}

void cMultiPanelActionsHolder::NGXSetShortButtonsActions(int32_t Button, uint8_t Row) {
    if (Row < kNGXRows) Set(ngxShort_, Button, Row);
}

uint8_t cMultiPanelActionsHolder::NGXGetLongButtonsActions(int32_t Button) const {
    return Get(ngxLong_, Button);
}

void cMultiPanelActionsHolder::NGXSetLongButtonsActions(int32_t Button, uint8_t Row) {
    if (Row < kNGXRows) Set(ngxLong_, Button, Row);
}
