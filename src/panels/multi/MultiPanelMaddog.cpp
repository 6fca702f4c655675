#include "panels/multi/MultiPanelMaddog.h"

#include <algorithm>

#include "base/Number.h"
#include "panels/multi/MultiPanelNumber.h"

namespace {

constexpr uint8_t kAutopilotLight = 1;
constexpr uint8_t kMachLight = 128;

// Controls of the add-on. What they mean besides their names is its own affair.
namespace MaddogControl {
enum : int32_t {
    kSetSpeed = 69653,
    kSetMach = 69654,
    kMachMode = 69655,
    kSetHeading = 69656,
    kHeadingLong = 69658,
    kHeading = 69659,
    kSetVerticalSpeed = 69660,
    kSpeedTurned = 69661,
    kSetAltitude = 69662,
    kArmAltitude = 69663,
    kAltitude = 69664,
    kAutoThrottle = 69665,
    kAutopilot = 69666,
    kSpeedHold = 69669,
    kNavMode = 69671,
    kNav = 69672,
    kNavLong = 69673,
    kApproach = 69674,
    kApproachLong = 69675,
    kVerticalSpeed = 69676,
    kVerticalSpeedTurned = 69677,
    kVerticalSpeedLong = 69678,
    kAltitudeLong = 69679,
    kSetNavMode = 69740,
    kMachHold = 69745,
    // Controls of the simulator itself.
    kSetCourse1 = 65716,
    kSetCourse2 = 65717,
};
}  // namespace MaddogControl

// A button that only runs a control, with parameter 1.
struct PlainButton {
    int32_t button;
    int32_t click;
    int32_t longClick;  // 0 for none
};
constexpr PlainButton kPlainButtons[] = {
    {MultiButton::kHDG, MaddogControl::kHeading, MaddogControl::kHeadingLong},
    {MultiButton::kNAV, MaddogControl::kNav, MaddogControl::kNavLong},
    {MultiButton::kIAS, 0, MaddogControl::kVerticalSpeedTurned},
    {MultiButton::kALT, 0, MaddogControl::kAltitudeLong},
    {MultiButton::kVS, MaddogControl::kVerticalSpeed, MaddogControl::kVerticalSpeedLong},
    {MultiButton::kAPR, MaddogControl::kApproach, MaddogControl::kApproachLong},
};

// What REV sends next after 1 to 6.
constexpr int32_t kNextNavMode[] = {1, 5, 1, 4, 6, 3, 2};

// 0 if the button does more, or isn't there.
int32_t ControlOf(int32_t button, int32_t PlainButton::*kind) {
    const auto* const found = std::ranges::find(kPlainButtons, button, &PlainButton::button);
    return found == std::end(kPlainButtons) ? 0 : found->*kind;
}

int32_t OnCircle(int32_t degrees) {
    if (degrees >= 360) return degrees - 360;
    return degrees < 0 ? degrees + 360 : degrees;
}

}  // namespace

void MultiPanelMaddog::Refresh(bool autopilotOn) {
    values_.MDAutopilotOn = autopilotOn;
    const int lights = (autopilotOn ? kAutopilotLight : 0) | (values_.MDMachMode ? kMachLight : 0);
    control_.WriteDisplay(std::nullopt, std::nullopt, static_cast<uint8_t>(lights));
}

void MultiPanelMaddog::ShowPosition(int32_t position) {
    switch (position) {
        case MultiPosition::kALT:
        case MultiPosition::kVS:
            control_.WriteDisplay(FormatInteger(values_.MDAltitude, 5),
                                  FormatInteger(values_.MDVerticalSpeed));
            break;
        case MultiPosition::kIAS:
            control_.WriteDisplay(values_.MDMachMode ? FormatInteger(values_.MDMach, 4)
                                                     : FormatInteger(values_.MDSpeed));
            break;
        case MultiPosition::kHDG:
            control_.WriteDisplay(FormatInteger(values_.MDHeading, 3));
            break;
        case MultiPosition::kCRS:
            control_.WriteDisplay(FormatInteger(values_.MDCourse, 3));
            break;
        default:
            break;
    }
}

void MultiPanelMaddog::SM_MADDOG_ButtonClick(int32_t Button) {
    switch (Button) {
        case MultiButton::kAP:
            ToggleAutopilot();
            break;
        case MultiButton::kIAS:
            output_.SendControl(
                values_.MDMachMode ? MaddogControl::kMachHold : MaddogControl::kSpeedHold, 1);
            break;
        case MultiButton::kALT:
            output_.SendControl(MaddogControl::kArmAltitude, values_.MDAltitude);
            output_.SendControl(MaddogControl::kAltitude, 1);
            break;
        case MultiButton::kREV:
            output_.SendControl(MaddogControl::kSetNavMode, values_.MDNavMode);
            output_.SendControl(MaddogControl::kNavMode, 1);
            values_.MDNavMode = kNextNavMode[values_.MDNavMode];
            break;
        default:
            if (const int32_t control = ControlOf(Button, &PlainButton::click)) {
                output_.SendControl(control, 1);
            }
            break;
    }
}

void MultiPanelMaddog::SM_MADDOG_ButtonLongClick(int32_t Button, int32_t position) {
    if (Button == MultiButton::kAP) {
        ToggleAutopilot();
    } else if (Button == MultiButton::kREV) {
        ToggleMach(position);
    } else if (const int32_t control = ControlOf(Button, &PlainButton::longClick)) {
        output_.SendControl(control, 1);
    }
}

void MultiPanelMaddog::ToggleAutopilot() {
    values_.MDAutopilotOn = !values_.MDAutopilotOn;
    output_.SendControl(MaddogControl::kAutopilot, values_.MDAutopilotOn ? 1 : 0);
}

void MultiPanelMaddog::ToggleMach(int32_t position) {
    values_.MDMachMode = !values_.MDMachMode;
    output_.SendControl(MaddogControl::kMachMode, values_.MDMachMode ? 1 : 0);
    if (position != MultiPosition::kIAS) return;
    control_.WriteDisplay(values_.MDMachMode ? FormatInteger(values_.MDMach, 4)
                                             : FormatInteger(values_.MDSpeed, 3));
}

void MultiPanelMaddog::SM_MADDOG_Rotary(int16_t Direction, int16_t Speed, int32_t position,
                                        bool secondCourse) {
    const int32_t step = Direction == 1 ? Speed : -Speed;
    Values& v = values_;
    switch (position) {
        case MultiPosition::kALT:
            v.MDAltitude = std::clamp(v.MDAltitude + step * 100, 0, 99000);
            control_.WriteDisplay(FormatInteger(v.MDAltitude, 5));
            output_.SendControl(MaddogControl::kSetAltitude, v.MDAltitude);
            output_.SendControl(MaddogControl::kArmAltitude, v.MDAltitude);
            break;
        case MultiPosition::kVS:
            v.MDVerticalSpeed = std::clamp(v.MDVerticalSpeed + step * 100, -8000, 4000);
            control_.WriteDisplay(std::nullopt, FormatInteger(v.MDVerticalSpeed));
            output_.SendControl(MaddogControl::kVerticalSpeedTurned, 1);
            output_.SendControl(MaddogControl::kVerticalSpeed, 1);
            output_.SendControl(MaddogControl::kSetVerticalSpeed, v.MDVerticalSpeed);
            break;
        case MultiPosition::kIAS:
            TurnSpeed(step);
            break;
        case MultiPosition::kHDG:
            v.MDHeading = OnCircle(v.MDHeading + step);
            control_.WriteDisplay(FormatInteger(v.MDHeading, 3));
            output_.SendControl(MaddogControl::kSetHeading, v.MDHeading);
            break;
        case MultiPosition::kCRS:
            v.MDCourse = OnCircle(v.MDCourse + step);
            control_.WriteDisplay(FormatInteger(v.MDCourse, 3));
            output_.SendControl(
                secondCourse ? MaddogControl::kSetCourse2 : MaddogControl::kSetCourse1, v.MDCourse);
            break;
        default:
            break;
    }
}

void MultiPanelMaddog::TurnSpeed(int32_t step) {
    Values& v = values_;
    if (v.MDMachMode) {
        v.MDMach = std::clamp(v.MDMach + step, 500, 900);
        control_.WriteDisplay(FormatInteger(v.MDMach, 4));
        output_.SendControl(MaddogControl::kSetMach, v.MDMach);
        return;
    }
    v.MDSpeed = std::clamp(v.MDSpeed + step, 100, 350);
    control_.WriteDisplay(FormatInteger(v.MDSpeed));
    output_.SendControl(MaddogControl::kSetSpeed, v.MDSpeed);
    output_.SendControl(MaddogControl::kSpeedTurned, v.MDSpeed);
}

void MultiPanelMaddog::SM_MADDOG_AutoThrottle(int16_t State) {
    output_.SendControl(MaddogControl::kAutoThrottle, State != 0 ? 1 : 0);
}
