#include "panels/multi/MultiPanelValues.h"

#include <algorithm>

#include "base/Number.h"
#include "panels/multi/MultiPanelNumber.h"
#include "panels/multi/MultiPanelOffsets.h"

namespace {

// A lower speed is a Mach number.
constexpr double kLowestKnots = 10;

void SetNumber(std::string& text, int64_t value, int digits) {
    text.clear();
    AppendInteger(text, value, digits);
}

// A compass value that leaves its circle goes to the other end, however far the knob was turned.
int16_t OnCompass(int value) {
    if (value < 0) return 359;
    return static_cast<int16_t>(value > 359 ? 0 : value);
}

}  // namespace

void MultiPanelValues::Refresh() {
    const bool ngx = session_.SpecialMode == kNGXMode;
    const double degrees = ngx ? 1 : 360.0 / 65536;
    const double feet = ngx ? 1 : kFeetPerMetre / 65536;
    speedValue_ = Read(MultiValue::kSpeed);
    verticalSpeed_ = RoundTo<int16_t>(Read(MultiValue::kVerticalSpeed));
    courseValue_ = {RoundTo<int16_t>(Read(MultiValue::kCourse1)),
                    RoundTo<int16_t>(Read(MultiValue::kCourse2))};
    headingBug_ = RoundTo<int16_t>(Read(MultiValue::kHeading) * degrees);
    altitudeValue_ = RoundTo<int32_t>(Read(MultiValue::kAltitude) * feet);
    read_.Take();
}

void MultiPanelValues::Show(int32_t position, bool secondCourse, std::string& upper,
                            std::string& lower) const {
    switch (position) {
        case MultiPosition::kALT:
        case MultiPosition::kVS:
        case MultiPosition::kIAS: {
            const bool speed = position == MultiPosition::kIAS;
            session_.SpecialMode == kNGXMode ? ShowNGX(speed, upper, lower)
                                             : ShowStandard(speed, upper, lower);
            break;
        }
        case MultiPosition::kHDG:
            SetNumber(upper, headingBug_, 3);
            lower.clear();
            break;
        case MultiPosition::kCRS:
            SetNumber(upper, courseValue_[secondCourse ? 1 : 0], 3);
            lower.clear();
            break;
        default:
            break;
    }
}

// Shows the speed alone, or the altitude with the vertical speed under it.
void MultiPanelValues::ShowStandard(bool speed, std::string& upper, std::string& lower) const {
    if (speed) {
        SetNumber(upper, RoundHalfEven(speedValue_), 1);
        lower.clear();
        return;
    }
    SetNumber(upper, altitudeValue_, 5);
    SetNumber(lower, verticalSpeed_, 1);
}

// The same of the add-on, whose windows can be blank.
void MultiPanelValues::ShowNGX(bool speed, std::string& upper, std::string& lower) const {
    lower.clear();
    if (speed) {
        upper.clear();
        if (Read(MultiValue::kSpeedBlank) != 0) return;
        if (speedValue_ < kLowestKnots) {
            AppendFixed(upper, speedValue_, 3);
        } else {
            AppendInteger(upper, RoundHalfEven(speedValue_));
        }
        return;
    }
    SetNumber(upper, altitudeValue_, 1);
    if (Read(MultiValue::kVerticalSpeedBlank) == 0) AppendInteger(lower, verticalSpeed_, 4);
}

void MultiPanelValues::Turn(int32_t position, bool secondCourse, int step) {
    switch (position) {
        case MultiPosition::kALT:
            altitudeValue_ = std::clamp(altitudeValue_ + step * 100, 0, 99000);
            Write(MultiValue::kAltitude, 4, altitudeValue_ / kFeetPerMetre * 65536);
            break;
        case MultiPosition::kVS:
            verticalSpeed_ =
                static_cast<int16_t>(std::clamp(verticalSpeed_ + step * 100, -9900, 9900));
            Write(MultiValue::kVerticalSpeed, 2, verticalSpeed_);
            break;
        case MultiPosition::kIAS:
            speedValue_ = std::max(speedValue_ + step, 0.0);
            Write(MultiValue::kSpeed, 2, speedValue_);
            break;
        case MultiPosition::kHDG:
            headingBug_ = OnCompass(headingBug_ + step);
            Write(MultiValue::kHeading, 3, headingBug_ / 360.0 * 65536);
            break;
        case MultiPosition::kCRS: {
            int16_t& course = courseValue_[secondCourse ? 1 : 0];
            course = OnCompass(course + step);
            Write(secondCourse ? MultiValue::kCourse2 : MultiValue::kCourse1, 2, course);
            break;
        }
        default:
            break;
    }
}

// Where the standard mode has the value.
void MultiPanelValues::Write(size_t value, int32_t dataType, double number) {
    session_.WriteOffset(kMultiOffsets[value].offset, dataType, number, false);
}
