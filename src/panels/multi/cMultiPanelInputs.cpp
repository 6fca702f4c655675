// What the panel's events do: the road of every event from its record.
#include "panels/multi/cMultiPanelLogic.h"

// Does `times` times what a record says, or once what the control does by itself in the present
// mode.
template <class NGX, class Standard>
void cMultiPanelLogic::Do(const ActionRecord& record, int times, NGX ngx, Standard standard) {
    if (record.FSEvent != ActionKind::Offset) {
        output_.SendAction(record, times);
    } else if (session_.SpecialMode == kNGXMode) {
        ngx();
    } else {
        standard();
    }
}

// The AP button starts from what the simulator says of the autopilot.
template <class Press>
void cMultiPanelLogic::PressMaddog(Press press) {
    session_.Acts.Do([this, press]() mutable {
        if (!values_.AreRead()) {
            const OffsetRow& row = kMultiOffsets[MultiValue::kMaster];
            const auto autopilot = session_.ReadOffset(row.offset, row.dataType);
            if (!autopilot) return false;
            maddog_.SetAutopilot(*autopilot == 1);
        }
        press();
        NoteChange();
        return true;
    });
}

// Where every position is bound to a virtual button, that of a position stays down while the
// selector stands there.
void cMultiPanelLogic::SelectorChange(int32_t NewPosition, int32_t OldPosition) {
    selectorPosition_ = NewPosition;
    ApplyRotAcceleration();
    ApplyTrimAcceleration();
    forceWrite_ = true;
    NoteChange();
    if (session_.SpecialMode == kMaddogMode) {
        selector_.LetGo();
        maddog_.ShowPosition(NewPosition);
        return;
    }
    const ActionRecord reached = MPActions->GetSelectorActions(NewPosition);
    selector_.MoveTo(reached, MPActions->GetSelectorActions(OldPosition));
    if (reached.FSEvent == ActionKind::VKey) output_.SendAction(reached);
}

void cMultiPanelLogic::Rotary(int16_t Direction, int16_t Speed) {
    if (session_.SpecialMode == kMaddogMode) {
        maddog_.SM_MADDOG_Rotary(Direction, Speed, selectorPosition_, SecondCourse());
        return;
    }
    const bool up = Direction == 1;
    const ActionRecord& record = up ? MPActions->GetRotUpActions(selectorPosition_)
                                    : MPActions->GetRotDownActions(selectorPosition_);
    Do(
        record, Speed, [&] { ngx_.Turn(selectorPosition_, SecondCourse(), up); },
        [&] { TurnStandard(up ? Speed : -Speed); });
}

void cMultiPanelLogic::TurnStandard(int step) {
    OnceRead(values_.Ticks(), [=, this, position = selectorPosition_, second = SecondCourse()] {
        values_.Turn(position, second, step);
    });
}

void cMultiPanelLogic::ButtonClick(int32_t Button) {
    if (session_.SpecialMode == kMaddogMode) {
        PressMaddog([this, Button] { maddog_.SM_MADDOG_ButtonClick(Button); });
    } else {
        PressButton(Button, MPActions->GetButtonsActions(Button),
                    MPActions->NGXGetShortButtonsActions(Button));
    }
}

void cMultiPanelLogic::ButtonLongClick(int32_t Button) {
    if (session_.SpecialMode == kMaddogMode) {
        SM_MADDOG_ButtonLongClick(Button);
    } else {
        PressButton(Button, MPActions->GetLongButtonsActions(Button),
                    MPActions->NGXGetLongButtonsActions(Button));
    }
}

void cMultiPanelLogic::SM_MADDOG_ButtonLongClick(int32_t Button) {
    PressMaddog([this, Button, position = selectorPosition_] {
        maddog_.SM_MADDOG_ButtonLongClick(Button, position);
    });
}

void cMultiPanelLogic::PressButton(int32_t button, const ActionRecord& record, uint8_t ngxRow) {
    Do(
        record, 1, [&] { ngx_.RunFunction(ngxRow); }, [&] { standard_.ToggleHold(button); });
}

void cMultiPanelLogic::Trim(int16_t Direction, int16_t Speed) {
    const bool up = Direction == 1;
    const bool reversed = MPActions->ReverseTrim == 1;
    const double step = Speed * MPActions->TrimSensitivity * 8.0 * (up != reversed ? 1 : -1);
    Do(
        MPActions->GetTrimActions(Direction), Speed,
        [&] { ngx_.Trim(up != (MPActions->ReverseTrim != 0), Speed); },
        [&] { standard_.Trim(step); });
}

void cMultiPanelLogic::Flaps(int16_t Direction) {
    const bool up = Direction == 1;
    const uint8_t reverse = MPActions->ReverseFlaps;
    Do(
        MPActions->GetFlapsActions(Direction), 1, [&] { ngx_.MoveFlaps(up != (reverse != 0)); },
        [&] { standard_.MoveFlaps(up != (reverse == 1)); });
}

// The button of a VButton record holds the switch's position.
void cMultiPanelLogic::AutoThrottleChange(int16_t State) {
    const bool armed = State != 0;
    const bool maddog = session_.SpecialMode == kMaddogMode;
    const ActionRecord record =
        maddog ? ActionRecord{} : MPActions->GetAutoThrottleActions(armed ? 1 : 0);
    if (armed) {
        autoThrottle_.MoveTo(record);
    } else {
        autoThrottle_.LetGo(record);
    }
    if (maddog) {
        maddog_.SM_MADDOG_AutoThrottle(State);
    } else if (record.FSEvent != ActionKind::VButton) {
        Do(
            record, 1, [&] { session_.Acts.Do([this, armed] { return SetThrottleNGX(armed); }); },
            [&] { standard_.ArmAutoThrottle(armed); });
    }
}

// The control only turns the add-on's switch over, so it goes out where the two differ.
bool cMultiPanelLogic::SetThrottleNGX(bool armed) {
    const OffsetRow& row = kMultiOffsets[MultiValue::kThrottleArm];
    const auto addOn = values_.AreRead() ? std::optional(offsets_[MultiValue::kThrottleArm].Data())
                                         : session_.ReadOffset(row.offset, row.dataType);
    if (!addOn) return false;
    if (armed ? *addOn == 0 : *addOn == 1) ngx_.ClickAutoThrottle();
    return true;
}
