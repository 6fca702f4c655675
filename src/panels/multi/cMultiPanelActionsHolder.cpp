#include "panels/multi/cMultiPanelActionsHolder.h"

#include <string>

#include "simlink/channel/NGXEventTable.h"

namespace {

constexpr const char* kPositions[] = {"ALT", "VS", "IAS", "HDG", "CRS"};
constexpr const char* kButtons[] = {"AP", "HDG", "NAV", "IAS", "ALT", "VS", "APR", "REV"};
constexpr const char* kSwitchSides[] = {"OFF", "ARM"};
constexpr const char* kDirections[] = {"DOWN", "UP"};

constexpr uint8_t kNGXShortDefaults[] = {12, 7, 4, 3, 10, 11, 9, 8};
constexpr uint8_t kNGXLongDefaults[] = {14, 13, 5, 2, 18, 6, 0, 1};
constexpr BindingTable::Range kNGXRange = {0, kNGXRows - 1};
constexpr BindingTable::Range kCourseRange = {0, 2};

template <class Table>
void AddNGXRows(BindingTable& keys, const std::string& suffix, Table& rows,
                const uint8_t* standards) {
    for (int32_t button = Table::kFirst; button <= Table::kLast; ++button) {
        const int32_t place = button - Table::kFirst;
        keys.Add(std::string("NGX").append(kButtons[place]).append(suffix), rows[button],
                 standards[place], kNGXRange);
    }
}

}  // namespace

cMultiPanelActionsHolder::cMultiPanelActionsHolder(ProfileStore& profiles)
    : cKeyedActionsHolder(profiles, "MultiPanel") {
    LoadDefaults();
}

BindingTable cMultiPanelActionsHolder::Keys() {
    BindingTable keys;
    keys.AddEach("SelectorAction", kPositions, selector_, ActionKind::None);
    keys.AddEach("RotUpAction", kPositions, rotUp_, ActionKind::Offset);
    keys.AddEach("RotDownAction", kPositions, rotDown_, ActionKind::Offset);
    keys.AddEach("ButtonAction", kButtons, buttons_, ActionKind::Offset);
    keys.AddEach("LongButtonAction", kButtons, longButtons_, ActionKind::Offset);
    keys.AddEach("AutoThrottleAction", kSwitchSides, autoThrottle_, ActionKind::Offset);
    keys.AddEach("FlapsAction", kDirections, flaps_, ActionKind::Offset);
    keys.AddEach("TrimAction", kDirections, trim_, ActionKind::Offset);
    keys.AddEach("RotaryAcceleration", kPositions, rotAcceleration_, int16_t{1});
    AddNGXRows(keys, "Short", ngxShort_, kNGXShortDefaults);
    AddNGXRows(keys, "Long", ngxLong_, kNGXLongDefaults);
    keys.Add("CourseSel", CourseSel, 1, kCourseRange);
    keys.Add("TrimAcceleration", TrimAcceleration, 1);
    keys.Add("TrimSensitivity", TrimSensitivity, 4);
    keys.AddFlag("ReverseTrim", ReverseTrim);
    keys.AddFlag("ReverseFlaps", ReverseFlaps);
    return keys;
}

int16_t cMultiPanelActionsHolder::GetRotAcceleration(int32_t Position) const {
    return rotAcceleration_.Get(Position);
}

void cMultiPanelActionsHolder::SetRotAcceleration(int32_t Position, int16_t Value) {
    rotAcceleration_.Set(Position, Value);
}

const ActionRecord& cMultiPanelActionsHolder::GetSelectorActions(int32_t Position) const {
    return selector_.Get(Position);
}

void cMultiPanelActionsHolder::SetSelectorActions(int32_t Position, const ActionRecord& Record) {
    selector_.Set(Position, Record);
}

const ActionRecord& cMultiPanelActionsHolder::GetButtonsActions(int32_t Button) const {
    return buttons_.Get(Button);
}

void cMultiPanelActionsHolder::SetButtonsActions(int32_t Button, const ActionRecord& Record) {
    buttons_.Set(Button, Record);
}

const ActionRecord& cMultiPanelActionsHolder::GetLongButtonsActions(int32_t Button) const {
    return longButtons_.Get(Button);
}

void cMultiPanelActionsHolder::SetLongButtonsActions(int32_t Button, const ActionRecord& Record) {
    longButtons_.Set(Button, Record);
}

const ActionRecord& cMultiPanelActionsHolder::GetRotUpActions(int32_t Position) const {
    return rotUp_.Get(Position);
}

void cMultiPanelActionsHolder::SetRotUpActions(int32_t Position, const ActionRecord& Record) {
    rotUp_.Set(Position, Record);
}

const ActionRecord& cMultiPanelActionsHolder::GetRotDownActions(int32_t Position) const {
    return rotDown_.Get(Position);
}

void cMultiPanelActionsHolder::SetRotDownActions(int32_t Position, const ActionRecord& Record) {
    rotDown_.Set(Position, Record);
}

const ActionRecord& cMultiPanelActionsHolder::GetAutoThrottleActions(int32_t Side) const {
    return autoThrottle_.Get(Side);
}

void cMultiPanelActionsHolder::SetAutoThrottleActions(int32_t Side, const ActionRecord& Record) {
    autoThrottle_.Set(Side, Record);
}

const ActionRecord& cMultiPanelActionsHolder::GetFlapsActions(int32_t Direction) const {
    return flaps_.Get(Direction);
}

void cMultiPanelActionsHolder::SetFlapsActions(int32_t Direction, const ActionRecord& Record) {
    flaps_.Set(Direction, Record);
}

const ActionRecord& cMultiPanelActionsHolder::GetTrimActions(int32_t Direction) const {
    return trim_.Get(Direction);
}

void cMultiPanelActionsHolder::SetTrimActions(int32_t Direction, const ActionRecord& Record) {
    trim_.Set(Direction, Record);
}

uint8_t cMultiPanelActionsHolder::NGXGetShortButtonsActions(int32_t Button) const {
    return ngxShort_.Get(Button);
}

void cMultiPanelActionsHolder::NGXSetShortButtonsActions(int32_t Button, uint8_t Row) {
    if (Row < kNGXRows) ngxShort_.Set(Button, Row);
}

uint8_t cMultiPanelActionsHolder::NGXGetLongButtonsActions(int32_t Button) const {
    return ngxLong_.Get(Button);
}

void cMultiPanelActionsHolder::NGXSetLongButtonsActions(int32_t Button, uint8_t Row) {
    if (Row < kNGXRows) ngxLong_.Set(Button, Row);
}
