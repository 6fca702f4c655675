#include "panels/radio/RadioTransponder.h"

#include <cmath>

#include "base/Number.h"
#include "panels/radio/RadioPanelOffsets.h"
#include "panels/radio/RadioTexts.h"
#include "simlink/channel/NGXEventTable.h"

namespace {

constexpr double kInHgPerHPa = 0.02953;
constexpr float kAltimeterStepInHg = 0.25F;  // hPa

constexpr int32_t kNGXAltimeterKnob = 69997;
constexpr int32_t kNGXAltimeterUp = 16384;
constexpr int32_t kNGXAltimeterDown = 8192;
constexpr int32_t kNGXAltimeterUnit = 69998;

}  // namespace

void RadioTransponder::Read() {
    qnh_ = static_cast<float>(offsets_[kQnh].Data()) / kQnhPerHPa;
    if (session_.SpecialMode == kNGXMode) altimeterInHg_ = offsets_[kNGXUnit].Data() == 0;
    code_.clear();
    AppendInteger(code_, offsets_[kTransponder].GetBCD(), 4);
}

void RadioTransponder::Show(std::string& active, std::string& standby) const {
    if (altimeterInHg_) {
        SetFixed(active, qnh_ * kInHgPerHPa, 2, 2);
    } else {
        SetFixed(active, qnh_, 0, 4);
    }
    standby = code_;
    standby.insert(digit_, 1, '.');
}

// The NGX's own unit comes back with the next tick.
void RadioTransponder::ToggleUnit() {
    if (session_.SpecialMode == kNGXMode) {
        output_.SendControl(kNGXAltimeterUnit, kNGXLeftClick);
    } else {
        altimeterInHg_ = !altimeterInHg_;
    }
}

// Digits go from 0 to 7 and take nothing along.
void RadioTransponder::TurnDigit(bool up) {
    char& digit = code_[digit_ - 1U];
    const int value = digit - '0' + (up ? 1 : -1);
    digit = static_cast<char>('0' + (value > 7 ? 0 : value < 0 ? 7 : value));
    session_.WriteBcd(kRadioOffsets[kTransponder].offset, ParseInteger<int32_t>(code_).value_or(0));
}

void RadioTransponder::TurnAltimeter(bool up) {
    if (session_.SpecialMode == kNGXMode) {
        output_.SendControl(kNGXAltimeterKnob, up ? kNGXAltimeterUp : kNGXAltimeterDown);
        return;
    }
    if (!altimeterInHg_) qnh_ = std::trunc(qnh_);
    const float step = altimeterInHg_ ? kAltimeterStepInHg : 1;
    qnh_ += up ? step : -step;
    session_.WriteOffset(kRadioOffsets[kQnh].offset, kRadioOffsetType, qnh_ * kQnhPerHPa, true);
}
