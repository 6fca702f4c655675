// Built-in behaviour of the panel's controls in the NGX mode: the add-on takes commands as controls
// of the simulator.
#include "panels/multi/cMultiPanelLogic.h"
#include "simlink/channel/NGXEventTable.h"

namespace {

// Parameters: what the mouse's wheel does to the add-on's knobs.
constexpr int32_t kWheelUp = 16384;
constexpr int32_t kWheelDown = 8192;

constexpr int32_t kTrimUp = 65615;
constexpr int32_t kTrimDown = 65607;
constexpr int32_t kFlapsUp = 65759;
constexpr int32_t kFlapsDown = 65758;
constexpr int32_t kAutoThrottleSwitch = 70012;
constexpr uint32_t kTrimPauseMs = 50;

struct Knob {
    int32_t control;
    bool reversed = false;  // turns against the wheel
};
constexpr Knob kKnobs[] = {{0}, {70032}, {70033, true}, {70016}, {70022}, {70008}};  // by position
constexpr int32_t kCoursePosition = 5;
constexpr Knob kSecondCourse = {70041};

}  // namespace

void cMultiPanelLogic::RunNGXFunction(uint8_t row) {
    output_.SendControl(NGXEventTable[row], kNGXLeftClick);
}

// One click of the wheel, however fast the knob is turned.
void cMultiPanelLogic::TurnNGX(bool up) {
    const auto position = static_cast<size_t>(selectorPosition_);
    if (position == 0 || position >= std::size(kKnobs)) return;
    const bool second = selectorPosition_ == kCoursePosition && SecondCourse();
    const Knob& knob = second ? kSecondCourse : kKnobs[position];
    output_.SendControl(knob.control, up != knob.reversed ? kWheelUp : kWheelDown);
}

void cMultiPanelLogic::TrimNGX(bool up, int16_t speed) {
    if (MPActions->ReverseTrim != 0) up = !up;
    for (int i = 0; i < speed; ++i) {
        output_.SendControl(up ? kTrimUp : kTrimDown, 0);
        clock_.Sleep(kTrimPauseMs);
    }
}

void cMultiPanelLogic::MoveFlapsNGX(bool up) {
    if (MPActions->ReverseFlaps != 0) up = !up;
    output_.SendControl(up ? kFlapsUp : kFlapsDown, 0);
}

// The control only turns the add-on's switch over, so it goes out where the two differ.
void cMultiPanelLogic::SetThrottleNGX(bool armed) {
    const double addOn = Value(kThrottleArmRow);
    if (armed ? addOn == 0 : addOn == 1) {
        output_.SendControl(kAutoThrottleSwitch, kNGXLeftClick);
    }
}
