#include "panels/multi/MultiPanelNGX.h"

#include <cstddef>

#include "panels/multi/MultiPanelNumber.h"
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
constexpr Knob kSecondCourse = {70041};

}  // namespace

void MultiPanelNGX::RunFunction(uint8_t row) {
    output_.SendControl(NGXEventTable[row], kNGXLeftClick);
}

void MultiPanelNGX::Turn(int32_t position, bool secondCourse, bool up) {
    if (position < MultiPosition::kALT || position > MultiPosition::kCRS) return;
    const bool second = position == MultiPosition::kCRS && secondCourse;
    const Knob& knob = second ? kSecondCourse : kKnobs[static_cast<size_t>(position)];
    output_.SendControl(knob.control, up != knob.reversed ? kWheelUp : kWheelDown);
}

void MultiPanelNGX::Trim(bool up, int16_t speed) {
    for (int i = 0; i < speed; ++i) {
        output_.SendControl(up ? kTrimUp : kTrimDown, 0);
        clock_.Sleep(kTrimPauseMs);
    }
}

void MultiPanelNGX::MoveFlaps(bool up) { output_.SendControl(up ? kFlapsUp : kFlapsDown, 0); }

void MultiPanelNGX::ClickAutoThrottle() { output_.SendControl(kAutoThrottleSwitch, kNGXLeftClick); }
