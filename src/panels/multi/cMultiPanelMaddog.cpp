// The panel in the Maddog mode: it keeps, shows and sends values of its own.
#include <algorithm>

#include "base/Number.h"
#include "panels/multi/cMultiPanelLogic.h"

namespace {

constexpr uint8_t kMachLight = 128;

// Buttons that only run a control, with parameter 1, by button number; 0 for the others.
constexpr int32_t kClickControls[] = {0, 0, 69659, 69672, 0, 0, 69676, 69674, 0};
constexpr int32_t kLongClickControls[] = {0, 0, 69658, 69673, 69677, 69679, 69678, 69675, 0};

// What REV sends next after 1 to 6.
constexpr int32_t kNextNavMode[] = {1, 5, 1, 4, 6, 3, 2};

int32_t ControlOf(const int32_t (&controls)[9], int32_t button) {
    return button >= 0 && static_cast<size_t>(button) < std::size(controls) ? controls[button] : 0;
}

int32_t OnCircle(int32_t degrees) {
    if (degrees >= 360) return degrees - 360;
    return degrees < 0 ? degrees + 360 : degrees;
}

}  // namespace

// The rows are written by what changes them.
void cMultiPanelLogic::RefreshMaddog() {
    UpdateLight(kMasterRow, 1);
    control_.WriteDisplay(std::nullopt, std::nullopt, panelLights_);
    maddog_.autopilotOn = (panelLights_ & 1) != 0;
}

void cMultiPanelLogic::ShowMaddogPosition() {
    switch (selectorPosition_) {
        case 1:
        case 2:
            control_.WriteDisplay(FormatInteger(maddog_.altitude, 5),
                                  FormatInteger(maddog_.verticalSpeed));
            break;
        case 3:
            control_.WriteDisplay(maddog_.machMode ? FormatInteger(maddog_.mach, 4)
                                                   : FormatInteger(maddog_.speed));
            break;
        case 4:
            control_.WriteDisplay(FormatInteger(maddog_.heading, 3));
            break;
        case 5:
            control_.WriteDisplay(FormatInteger(maddog_.course, 3));
            break;
        default:
            break;
    }
}

void cMultiPanelLogic::SM_MADDOG_ButtonClick(int32_t Button) {
    EventOutput& output = output_;
    switch (Button) {
        case 1:
            ToggleMaddogAutopilot();
            break;
        case 4:
            output.SendControl(maddog_.machMode ? 69745 : 69669, 1);
            break;
        case 5:
            output.SendControl(69663, maddog_.altitude);
            output.SendControl(69664, 1);
            break;
        case 8:
            output.SendControl(69740, maddog_.navMode);
            output.SendControl(69671, 1);
            maddog_.navMode = kNextNavMode[maddog_.navMode];
            break;
        default:
            if (const int32_t control = ControlOf(kClickControls, Button)) {
                output.SendControl(control, 1);
            }
            break;
    }
}

void cMultiPanelLogic::SM_MADDOG_ButtonLongClick(int32_t Button) {
    if (Button == 1) {
        ToggleMaddogAutopilot();
    } else if (Button == 8) {
        ToggleMaddogMach();
    } else if (const int32_t control = ControlOf(kLongClickControls, Button)) {
        output_.SendControl(control, 1);
    }
}

void cMultiPanelLogic::ToggleMaddogAutopilot() {
    maddog_.autopilotOn = !maddog_.autopilotOn;
    output_.SendControl(69666, maddog_.autopilotOn ? 1 : 0);
}

void cMultiPanelLogic::ToggleMaddogMach() {
    maddog_.machMode = !maddog_.machMode;
    const int lights = maddog_.machMode ? panelLights_ | kMachLight : panelLights_ & ~kMachLight;
    panelLights_ = static_cast<uint8_t>(lights);
    output_.SendControl(69655, maddog_.machMode ? 1 : 0);
    if (selectorPosition_ != 3) return;
    control_.WriteDisplay(maddog_.machMode ? FormatInteger(maddog_.mach, 4)
                                           : FormatInteger(maddog_.speed, 3));
}

void cMultiPanelLogic::SM_MADDOG_Rotary(int16_t Direction, int16_t Speed) {
    const int32_t step = Direction == 1 ? Speed : -Speed;
    EventOutput& output = output_;
    switch (selectorPosition_) {
        case 1:
            maddog_.altitude = std::clamp(maddog_.altitude + step * 100, 0, 99000);
            control_.WriteDisplay(FormatInteger(maddog_.altitude, 5));
            output.SendControl(69662, maddog_.altitude);
            output.SendControl(69663, maddog_.altitude);
            break;
        case 2:
            maddog_.verticalSpeed = std::clamp(maddog_.verticalSpeed + step * 100, -8000, 4000);
            control_.WriteDisplay(std::nullopt, FormatInteger(maddog_.verticalSpeed));
            output.SendControl(69677, 1);
            output.SendControl(69676, 1);
            output.SendControl(69660, maddog_.verticalSpeed);
            break;
        case 3:
            TurnMaddogSpeed(step);
            break;
        case 4:
            maddog_.heading = OnCircle(maddog_.heading + step);
            control_.WriteDisplay(FormatInteger(maddog_.heading, 3));
            output.SendControl(69656, maddog_.heading);
            break;
        case 5:
            maddog_.course = OnCircle(maddog_.course + step);
            control_.WriteDisplay(FormatInteger(maddog_.course, 3));
            output.SendControl(SecondCourse() ? 65717 : 65716, maddog_.course);
            break;
        default:
            break;
    }
}

void cMultiPanelLogic::TurnMaddogSpeed(int32_t step) {
    EventOutput& output = output_;
    if (maddog_.machMode) {
        maddog_.mach = std::clamp(maddog_.mach + step, 500, 900);
        control_.WriteDisplay(FormatInteger(maddog_.mach, 4));
        output.SendControl(69654, maddog_.mach);
        return;
    }
    maddog_.speed = std::clamp(maddog_.speed + step, 100, 350);
    control_.WriteDisplay(FormatInteger(maddog_.speed));
    output.SendControl(69653, maddog_.speed);
    output.SendControl(69661, maddog_.speed);
}

void cMultiPanelLogic::SM_MADDOG_AutoThrottle(int16_t State) {
    output_.SendControl(69665, State != 0 ? 1 : 0);
}
