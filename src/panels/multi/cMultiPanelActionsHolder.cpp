#include "panels/multi/cMultiPanelActionsHolder.h"

#include <cstddef>

namespace {

const ActionRecord kNothing;

template <size_t Size>
const ActionRecord& At(const std::array<ActionRecord, Size>& table, int32_t index) {
    return index >= 0 && static_cast<size_t>(index) < Size ? table[static_cast<size_t>(index)]
                                                           : kNothing;
}

template <size_t Size>
void BuiltIn(std::array<ActionRecord, Size>& table, size_t first) {
    for (size_t i = first; i < Size; ++i) table[i].FSEvent = ActionKind::Offset;
}

}  // namespace

int16_t cMultiPanelActionsHolder::GetRotAcceleration(int32_t Position) const {
    const auto index = static_cast<size_t>(Position);
    return Position >= 0 && index < rotAcceleration_.size() ? rotAcceleration_[index] : int16_t{0};
}

const ActionRecord& cMultiPanelActionsHolder::GetButtonsActions(int32_t Button) const {
    return At(buttons_, Button);
}

const ActionRecord& cMultiPanelActionsHolder::GetLongButtonsActions(int32_t Button) const {
    return At(longButtons_, Button);
}

const ActionRecord& cMultiPanelActionsHolder::GetRotUpActions(int32_t Position) const {
    return At(rotUp_, Position);
}

const ActionRecord& cMultiPanelActionsHolder::GetRotDownActions(int32_t Position) const {
    return At(rotDown_, Position);
}

const ActionRecord& cMultiPanelActionsHolder::GetAutoThrottleActions(int32_t Side) const {
    return At(autoThrottle_, Side);
}

const ActionRecord& cMultiPanelActionsHolder::GetFlapsActions(int32_t Direction) const {
    return At(flaps_, Direction);
}

const ActionRecord& cMultiPanelActionsHolder::GetTrimActions(int32_t Direction) const {
    return At(trim_, Direction);
}

void cMultiPanelActionsHolder::LoadDefaults() {
    TrimAcceleration = 1;
    TrimSensitivity = 4;
    ReverseTrim = 0;
    ReverseFlaps = 0;
    CourseSel = 1;
    BuiltIn(buttons_, 1);
    BuiltIn(longButtons_, 1);
    BuiltIn(rotUp_, 1);
    BuiltIn(rotDown_, 1);
    BuiltIn(autoThrottle_, 0);
    BuiltIn(flaps_, 0);
    BuiltIn(trim_, 0);
    rotAcceleration_ = {0, 1, 1, 1, 1, 1};
}
