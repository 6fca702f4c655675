// What the panel's events do: the road of every event from its record, and the built-in behaviour
// in the standard mode.
#include <algorithm>

#include "panels/multi/cMultiPanelLogic.h"

namespace {

constexpr int32_t kApproachButton = 7;
constexpr int32_t kGlideSlopeHold = 0x07FC;
constexpr int32_t kElevatorTrim = 0x0BC0;
constexpr int32_t kFlapsIncrement = 0x3BFA;
constexpr int32_t kFlapsControl = 0x0BDC;
constexpr int32_t kAutoThrottleArm = 0x0810;
constexpr double kFullDeflection = 16383;

// A compass value that leaves its circle goes to the other end, however far the knob was turned.
int16_t OnCompass(int value) {
    if (value < 0) return 359;
    return static_cast<int16_t>(value > 359 ? 0 : value);
}

constexpr int32_t OffsetOf(size_t row) {
    const auto* found = std::ranges::find(kStandardOffsets, row, &MultiPanelOffset::row);
    return found->offset;
}

}  // namespace

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

void cMultiPanelLogic::SelectorChange(int32_t NewPosition, int32_t OldPosition) {
    selectorPosition_ = NewPosition;
    ApplyRotAcceleration();
    ApplyTrimAcceleration();
    forceWrite_ = true;
    if (session_.SpecialMode == kMaddogMode) {
        ShowMaddogPosition();
    } else {
        SendSelectorAction(NewPosition, OldPosition);
    }
}

// Where every position is bound to a virtual button, that of a position stays down while the
// selector stands there.
void cMultiPanelLogic::SendSelectorAction(int32_t newPosition, int32_t oldPosition) {
    const ActionRecord& reached = MPActions->GetSelectorActions(newPosition);
    if (reached.FSEvent != ActionKind::VButton) {
        output_.SendAction(reached);
        return;
    }
    output_.SetVirtualButton(reached, true, false);
    const ActionRecord& left = MPActions->GetSelectorActions(oldPosition);
    if (left.FSEvent == ActionKind::VButton) {
        output_.SetVirtualButton(left, false, false);
    }
}

void cMultiPanelLogic::Rotary(int16_t Direction, int16_t Speed) {
    if (session_.SpecialMode == kMaddogMode) {
        SM_MADDOG_Rotary(Direction, Speed);
        return;
    }
    const bool up = Direction == 1;
    const ActionRecord& record = up ? MPActions->GetRotUpActions(selectorPosition_)
                                    : MPActions->GetRotDownActions(selectorPosition_);
    Do(
        record, Speed, [&] { TurnNGX(up); }, [&] { TurnStandard(up ? Speed : -Speed); });
}

void cMultiPanelLogic::TurnStandard(int step) {
    switch (selectorPosition_) {
        case 1:
            altitudeValue_ = std::clamp(altitudeValue_ + step * 100, 0, 99000);
            session_.WriteOffset(OffsetOf(kAltitudeRow), 4, altitudeValue_ / kFeetPerMetre * 65536,
                                 false);
            break;
        case 2:
            verticalSpeed_ =
                static_cast<int16_t>(std::clamp(verticalSpeed_ + step * 100, -9900, 9900));
            session_.WriteOffset(OffsetOf(kVerticalSpeedRow), 2, verticalSpeed_, false);
            break;
        case 3:
            speedValue_ = std::max(speedValue_ + step, 0.0);
            session_.WriteOffset(OffsetOf(kSpeedRow), 2, speedValue_, false);
            break;
        case 4:
            headingBug_ = OnCompass(headingBug_ + step);
            session_.WriteOffset(OffsetOf(kHeadingRow), 3, headingBug_ / 360.0 * 65536, false);
            break;
        case 5:
            courseValue_ = OnCompass(courseValue_ + step);
            session_.WriteOffset(OffsetOf(SecondCourse() ? kCourse2Row : kCourse1Row), 2,
                                 courseValue_, false);
            break;
        default:
            break;
    }
}

void cMultiPanelLogic::ButtonClick(int32_t Button) {
    if (session_.SpecialMode == kMaddogMode) {
        SM_MADDOG_ButtonClick(Button);
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

void cMultiPanelLogic::PressButton(int32_t button, const ActionRecord& record, uint8_t ngxRow) {
    Do(
        record, 1, [&] { RunNGXFunction(ngxRow); }, [&] { ToggleHold(button); });
}

void cMultiPanelLogic::ToggleHold(int32_t button) {
    cOFFSET hold(session_.Fsuipc, OffsetOf(static_cast<size_t>(button - 1)), 4);
    hold.DirectRead(true);
    const double value = hold.Data() == 0 ? 1 : 0;
    session_.WriteOffset(hold.Offset, 4, value, false);
    if (button == kApproachButton) session_.WriteOffset(kGlideSlopeHold, 4, value, false);
}

void cMultiPanelLogic::Trim(int16_t Direction, int16_t Speed) {
    const bool up = Direction == 1;
    Do(
        MPActions->GetTrimActions(Direction), Speed, [&] { TrimNGX(up, Speed); },
        [&] { TrimStandard(up, Speed); });
}

void cMultiPanelLogic::TrimStandard(bool up, int16_t speed) {
    const double step = speed * MPActions->TrimSensitivity * 8.0;
    if (MPActions->ReverseTrim == 1) up = !up;
    cOFFSET trim(session_.Fsuipc, kElevatorTrim, 2);
    trim.DirectRead(true);
    trim.SetData(std::clamp(trim.Data() + (up ? step : -step), -kFullDeflection, kFullDeflection));
    trim.DirectWrite(true);
}

void cMultiPanelLogic::Flaps(int16_t Direction) {
    const bool up = Direction == 1;
    Do(
        MPActions->GetFlapsActions(Direction), 1, [&] { MoveFlapsNGX(up); },
        [&] { MoveFlapsStandard(up); });
}

void cMultiPanelLogic::MoveFlapsStandard(bool up) {
    cOFFSET increment(session_.Fsuipc, kFlapsIncrement, 2);
    increment.DirectRead(true);
    const double step = increment.Data();
    if (MPActions->ReverseFlaps == 1) up = !up;
    cOFFSET flaps(session_.Fsuipc, kFlapsControl, 2);
    flaps.DirectRead(true);
    flaps.SetData(std::clamp(flaps.Data() + (up ? -step : step), 0.0, kFullDeflection));
    flaps.DirectWrite(false);
}

void cMultiPanelLogic::AutoThrottleChange(int16_t State) {
    if (session_.SpecialMode == kMaddogMode) {
        SM_MADDOG_AutoThrottle(State);
        return;
    }
    const bool armed = State != 0;
    const ActionRecord& record = MPActions->GetAutoThrottleActions(armed ? 1 : 0);
    if (record.FSEvent == ActionKind::VButton) {
        // The button holds the switch's position.
        output_.SetVirtualButton(record, armed, false);
        return;
    }
    Do(
        record, 1, [&] { SetThrottleNGX(armed); },
        [&] { session_.WriteOffset(kAutoThrottleArm, 4, armed ? 1 : 0, false); });
}
