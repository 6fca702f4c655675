// What the panel's events do to the simulator.
#include <algorithm>

#include "base/Number.h"
#include "panels/multi/MultiPanelOffsets.h"
#include "panels/multi/cMultiPanelLogic.h"

namespace {

constexpr int32_t kApproachButton = 7;
constexpr int32_t kGlideSlopeHold = 0x07FC;
constexpr int32_t kElevatorTrim = 0x0BC0;
constexpr int32_t kFlapsIncrement = 0x3BFA;
constexpr int32_t kFlapsControl = 0x0BDC;
constexpr int32_t kAutoThrottleArm = 0x0810;
constexpr double kFullDeflection = 16383;

bool IsBuiltIn(const ActionRecord& record) { return record.FSEvent == ActionKind::Offset; }

// A compass value that leaves its circle goes to the other end, however far the knob was turned.
int16_t OnCompass(int value) {
    if (value < 0) return 359;
    return static_cast<int16_t>(value > 359 ? 0 : value);
}

}  // namespace

void cMultiPanelLogic::SelectorChange(int32_t NewPosition, int32_t /*OldPosition*/) {
    selectorPosition_ = NewPosition;
    control_.RotAcceleration(static_cast<uint8_t>(MPActions->GetRotAcceleration(NewPosition)));
    control_.TrimAcceleration(static_cast<uint8_t>(MPActions->TrimAcceleration));
    forceWrite_ = true;
}

void cMultiPanelLogic::Rotary(int16_t Direction, int16_t Speed) {
    const ActionRecord& record = Direction == 1 ? MPActions->GetRotUpActions(selectorPosition_)
                                                : MPActions->GetRotDownActions(selectorPosition_);
    if (!IsBuiltIn(record)) return;
    const int step = Direction == 1 ? Speed : -Speed;
    const auto offsetOf = [](size_t row) { return kMultiPanelOffsets[row].offset; };
    switch (selectorPosition_) {
        case 1:
            altitudeValue_ = std::clamp(altitudeValue_ + step * 100, 0, 99000);
            WriteOffset(offsetOf(kAltitudeRow), 4, altitudeValue_ / kFeetPerMetre * 65536);
            break;
        case 2:
            verticalSpeed_ =
                static_cast<int16_t>(std::clamp(verticalSpeed_ + step * 100, -9900, 9900));
            WriteOffset(offsetOf(kVerticalSpeedRow), 2, verticalSpeed_);
            break;
        case 3:
            speedValue_ = std::max(speedValue_ + step, 0.0);
            WriteOffset(offsetOf(kSpeedRow), 2, speedValue_);
            break;
        case 4:
            headingBug_ = OnCompass(headingBug_ + step);
            WriteOffset(offsetOf(kHeadingRow), 3, headingBug_ / 360.0 * 65536);
            break;
        case 5:
            courseValue_ = OnCompass(courseValue_ + step);
            WriteOffset(offsetOf(SecondCourse() ? kCourse2Row : kCourse1Row), 2, courseValue_);
            break;
        default:
            break;
    }
}

void cMultiPanelLogic::ButtonClick(int32_t Button) {
    if (IsBuiltIn(MPActions->GetButtonsActions(Button))) ToggleHold(Button);
}

void cMultiPanelLogic::ButtonLongClick(int32_t Button) {
    if (IsBuiltIn(MPActions->GetLongButtonsActions(Button))) ToggleHold(Button);
}

void cMultiPanelLogic::ToggleHold(int32_t button) {
    cOFFSET hold(session_.Fsuipc, kMultiPanelOffsets[static_cast<size_t>(button - 1)].offset, 4);
    hold.DirectRead(true);
    const double value = hold.Data() == 0 ? 1 : 0;
    WriteOffset(hold.Offset, 4, value);
    if (button == kApproachButton) WriteOffset(kGlideSlopeHold, 4, value);
}

void cMultiPanelLogic::Trim(int16_t Direction, int16_t Speed) {
    if (!IsBuiltIn(MPActions->GetTrimActions(Direction))) return;
    const double step = Speed * MPActions->TrimSensitivity * 8.0;
    const bool up = (Direction == 1) != (MPActions->ReverseTrim == 1);
    cOFFSET trim(session_.Fsuipc, kElevatorTrim, 2);
    trim.DirectRead(true);
    trim.SetData(std::clamp(trim.Data() + (up ? step : -step), -kFullDeflection, kFullDeflection));
    trim.DirectWrite(true);
}

void cMultiPanelLogic::Flaps(int16_t Direction) {
    if (!IsBuiltIn(MPActions->GetFlapsActions(Direction))) return;
    cOFFSET increment(session_.Fsuipc, kFlapsIncrement, 2);
    increment.DirectRead(true);
    const double step = increment.Data();
    const bool up = (Direction == 1) != (MPActions->ReverseFlaps == 1);
    cOFFSET flaps(session_.Fsuipc, kFlapsControl, 2);
    flaps.DirectRead(true);
    flaps.SetData(std::clamp(flaps.Data() + (up ? -step : step), 0.0, kFullDeflection));
    flaps.DirectWrite(false);
}

void cMultiPanelLogic::AutoThrottleChange(int16_t State) {
    const int16_t side = State != 0 ? 1 : 0;
    if (IsBuiltIn(MPActions->GetAutoThrottleActions(side))) WriteOffset(kAutoThrottleArm, 4, side);
}

// Goes out with the next exchange.
void cMultiPanelLogic::WriteOffset(int32_t offset, int32_t dataType, double value) {
    cOFFSET target(session_.Fsuipc, offset, dataType);
    target.SetData(value);
    target.DirectWrite(false);
}
