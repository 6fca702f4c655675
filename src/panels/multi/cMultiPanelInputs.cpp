// What the panel's events do: the road of every event from its record, and the built-in behaviour
// in the standard mode.
#include <algorithm>

#include "panels/multi/MultiPanelNumber.h"
#include "panels/multi/cMultiPanelLogic.h"

namespace {

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

// Where the standard mode has a value.
constexpr int32_t OffsetOf(size_t value) { return kMultiOffsets[value].offset; }

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

// Where every position is bound to a virtual button, that of a position stays down while the
// selector stands there.
void cMultiPanelLogic::SelectorChange(int32_t NewPosition, int32_t OldPosition) {
    selectorPosition_ = NewPosition;
    ApplyRotAcceleration();
    ApplyTrimAcceleration();
    forceWrite_ = true;
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
    if (!values_.AreRead()) return;
    const auto write = [this](size_t value, int32_t type, double number) {
        session_.WriteOffset(OffsetOf(value), type, number, false);
    };
    switch (selectorPosition_) {
        case MultiPosition::kALT:
            altitudeValue_ = std::clamp(altitudeValue_ + step * 100, 0, 99000);
            write(MultiValue::kAltitude, 4, altitudeValue_ / kFeetPerMetre * 65536);
            break;
        case MultiPosition::kVS:
            verticalSpeed_ =
                static_cast<int16_t>(std::clamp(verticalSpeed_ + step * 100, -9900, 9900));
            write(MultiValue::kVerticalSpeed, 2, verticalSpeed_);
            break;
        case MultiPosition::kIAS:
            speedValue_ = std::max(speedValue_ + step, 0.0);
            write(MultiValue::kSpeed, 2, speedValue_);
            break;
        case MultiPosition::kHDG:
            headingBug_ = OnCompass(headingBug_ + step);
            write(MultiValue::kHeading, 3, headingBug_ / 360.0 * 65536);
            break;
        case MultiPosition::kCRS:
            courseValue_ = OnCompass(courseValue_ + step);
            write(SecondCourse() ? MultiValue::kCourse2 : MultiValue::kCourse1, 2, courseValue_);
            break;
        default:
            break;
    }
}

void cMultiPanelLogic::ButtonClick(int32_t Button) {
    if (session_.SpecialMode == kMaddogMode) {
        maddog_.SM_MADDOG_ButtonClick(Button, values_.AreRead());
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
    maddog_.SM_MADDOG_ButtonLongClick(Button, selectorPosition_, values_.AreRead());
}

void cMultiPanelLogic::PressButton(int32_t button, const ActionRecord& record, uint8_t ngxRow) {
    Do(
        record, 1, [&] { ngx_.RunFunction(ngxRow); },
        [&] { session_.Acts.Do([this, button] { return ToggleHold(button); }); });
}

bool cMultiPanelLogic::ToggleHold(int32_t button) {
    const int32_t offset = OffsetOf(static_cast<size_t>(button - 1));
    const auto hold = session_.ReadOffset(offset, 4);
    if (!hold) return false;
    const double value = *hold == 0 ? 1 : 0;
    session_.WriteOffset(offset, 4, value, false);
    if (button == MultiButton::kAPR) session_.WriteOffset(kGlideSlopeHold, 4, value, false);
    return true;
}

void cMultiPanelLogic::Trim(int16_t Direction, int16_t Speed) {
    const bool up = Direction == 1;
    const bool reversed = MPActions->ReverseTrim == 1;
    const double step = Speed * MPActions->TrimSensitivity * 8.0 * (up != reversed ? 1 : -1);
    Do(
        MPActions->GetTrimActions(Direction), Speed,
        [&] { ngx_.Trim(up != (MPActions->ReverseTrim != 0), Speed); },
        [&] { session_.Acts.Do([this, step] { return TrimStandard(step); }); });
}

bool cMultiPanelLogic::TrimStandard(double step) {
    const auto trim = session_.ReadOffset(kElevatorTrim, 2);
    if (!trim) return false;
    session_.WriteOffset(kElevatorTrim, 2,
                         std::clamp(*trim + step, -kFullDeflection, kFullDeflection), true);
    return true;
}

void cMultiPanelLogic::Flaps(int16_t Direction) {
    const bool up = Direction == 1;
    const uint8_t reverse = MPActions->ReverseFlaps;
    Do(
        MPActions->GetFlapsActions(Direction), 1, [&] { ngx_.MoveFlaps(up != (reverse != 0)); },
        [&] {
            session_.Acts.Do(
                [this, higher = up != (reverse == 1)] { return MoveFlapsStandard(higher); });
        });
}

bool cMultiPanelLogic::MoveFlapsStandard(bool up) {
    const auto step = session_.ReadOffset(kFlapsIncrement, 2);
    const auto flaps = step ? session_.ReadOffset(kFlapsControl, 2) : std::nullopt;
    if (!flaps) return false;
    session_.WriteOffset(kFlapsControl, 2,
                         std::clamp(*flaps + (up ? -*step : *step), 0.0, kFullDeflection), false);
    return true;
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
            [&] { session_.WriteOffset(kAutoThrottleArm, 4, armed ? 1 : 0, false); });
    }
}

// The control only turns the add-on's switch over, so it goes out where the two differ.
bool cMultiPanelLogic::SetThrottleNGX(bool armed) {
    const OffsetRow& row = kMultiOffsets[MultiValue::kThrottleArm];
    const auto addOn = values_.AreRead() ? std::optional(Value(MultiValue::kThrottleArm))
                                         : session_.ReadOffset(row.offset, row.dataType);
    if (!addOn) return false;
    if (armed ? *addOn == 0 : *addOn == 1) ngx_.ClickAutoThrottle();
    return true;
}
