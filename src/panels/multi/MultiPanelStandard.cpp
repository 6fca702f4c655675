#include "panels/multi/MultiPanelStandard.h"

#include <algorithm>

#include "panels/multi/MultiPanelNumber.h"
#include "panels/multi/MultiPanelOffsets.h"

namespace {

constexpr int32_t kGlideSlopeHold = 0x07FC;
constexpr int32_t kElevatorTrim = 0x0BC0;
constexpr int32_t kFlapsIncrement = 0x3BFA;
constexpr int32_t kFlapsControl = 0x0BDC;
constexpr int32_t kAutoThrottleArm = 0x0810;
constexpr double kFullDeflection = 16383;

}  // namespace

void MultiPanelStandard::ToggleHold(int32_t button) {
    session_.Acts.Do([this, button] { return TryToggleHold(button); });
}

bool MultiPanelStandard::TryToggleHold(int32_t button) {
    const int32_t offset = kMultiOffsets[button - MultiButton::kAP].offset;
    const auto hold = session_.ReadOffset(offset, 4);
    if (!hold) return false;
    const double value = *hold == 0 ? 1 : 0;
    session_.WriteOffset(offset, 4, value, false);
    if (button == MultiButton::kAPR) session_.WriteOffset(kGlideSlopeHold, 4, value, false);
    return true;
}

void MultiPanelStandard::Trim(double step) {
    session_.Acts.Do([this, step] { return TryTrim(step); });
}

bool MultiPanelStandard::TryTrim(double step) {
    const auto trim = session_.ReadOffset(kElevatorTrim, 2);
    if (!trim) return false;
    session_.WriteOffset(kElevatorTrim, 2,
                         std::clamp(*trim + step, -kFullDeflection, kFullDeflection), true);
    return true;
}

void MultiPanelStandard::MoveFlaps(bool up) {
    session_.Acts.Do([this, up] { return TryMoveFlaps(up); });
}

bool MultiPanelStandard::TryMoveFlaps(bool up) {
    const auto step = session_.ReadOffset(kFlapsIncrement, 2);
    const auto flaps = step ? session_.ReadOffset(kFlapsControl, 2) : std::nullopt;
    if (!flaps) return false;
    session_.WriteOffset(kFlapsControl, 2,
                         std::clamp(*flaps + (up ? -*step : *step), 0.0, kFullDeflection), false);
    return true;
}

void MultiPanelStandard::ArmAutoThrottle(bool armed) {
    session_.WriteOffset(kAutoThrottleArm, 4, armed ? 1 : 0, false);
}
