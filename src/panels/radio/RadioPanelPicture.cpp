#include "panels/radio/RadioPanelPicture.h"

#include "panels/radio/RadioPanelReport.h"

namespace {

using namespace PanelColor;

constexpr int32_t kLowerRow = 1620;  // so far below the upper one
constexpr int32_t kSelectorLength = 400;
constexpr int32_t kInnerRadius = 240;
constexpr int32_t kOuterRadius = 540;

// Counter-clockwise from straight up.
constexpr std::array<double, 7> kSelectorDegrees = {0, 38, 71, 108, 131, 158, 195};

constexpr PanelShape kShapes[] = {
    {ShapeKind::Oval, 750, 295, 660, 660, kKnob, kKnobRim},            // selector
    {ShapeKind::Rectangle, 1650, 330, 2310, 720, kWell, kRim},         // active display
    {ShapeKind::Rectangle, 4050, 330, 2310, 720, kWell, kRim},         // standby display
    {ShapeKind::RoundedRectangle, 6450, 180, 1080, 870, kBody, kRim},  // frame of the button
    {ShapeKind::Rectangle, 6600, 150, 870, 60, kBody, kBody},          // gap for its caption
    {ShapeKind::Oval, 7620, 30, 1140, 1140, kKnob, kKnobRim},          // outer ring
    {ShapeKind::Oval, 7920, 330, 540, 540, kRim, kKnobRim},            // inner ring
};

constexpr PanelCaption kCaptions[] = {
    {855, 45, 450, 135, "COM1"},      {300, 195, 450, 135, "COM2"},
    {195, 405, 450, 135, "NAV1"},     {195, 675, 450, 135, "NAV2"},
    {295, 870, 450, 135, "ADF"},      {630, 1050, 450, 135, "DME"},
    {1060, 1050, 450, 135, "XPDR"},   {1650, 90, 2310, 165, "ACTIVE"},
    {4050, 90, 2310, 165, "STANDBY"}, {6480, 90, 1020, 135, "  ACT/STDBY"},
    {7020, 450, 510, 135, "XPDR"},    {7020, 660, 510, 135, "DIGIT"},
};

}  // namespace

RadioPanelPicture::Side::Side(Picture& panel)
    : labActive(&panel),
      labStandby(&panel),
      labSpeed(&panel),
      shpSwitch(&panel),
      lineSelector(&panel),
      lineInnRot(&panel),
      lineOutRot(&panel) {}

RadioPanelPicture::RadioPanelPicture(Picture& panel)
    : body_(panel, kShapes, kCaptions, {0, kLowerRow}), sides_{{Side(panel), Side(panel)}} {
    Place(At(1), 0);
    Place(At(2), kLowerRow);
}

void RadioPanelPicture::Place(Side& side, int32_t down) {
    PlaceDisplay(side.labActive, 1710, 427 + down, 2190, 525);
    PlaceDisplay(side.labStandby, 4110, 427 + down, 2190, 525);
    PlaceSpeed(side.labSpeed, 8850, 495 + down, 360);
    side.labSpeed.Caption = SpeedText(1);
    side.shpSwitch.Kind = ShapeKind::RoundedRectangle;
    side.shpSwitch.FillColor = kWhite;
    side.shpSwitch.Move(6555, 450 + down, 465, 420);
    PlacePointer(side.lineSelector, 1080, 625 + down, kSelectorLength);
    PlacePointer(side.lineInnRot, 8190, 600 + down, kInnerRadius);
    PlacePointer(side.lineOutRot, 8190, 600 - kInnerRadius + down, kOuterRadius - kInnerRadius);
}

void RadioPanelPicture::ShowSelector(int side, int32_t bits) {
    const auto& positions = kRadioSelectorBits[static_cast<size_t>(side - 1)];
    double degrees = 0;
    for (size_t i = 0; i < positions.size(); ++i) {
        if (positions[i] == bits) degrees = kSelectorDegrees[i];
    }
    At(side).lineSelector.PointTo(-degrees, kSelectorLength);
}

void RadioPanelPicture::ShowButton(int side, bool pressed) {
    At(side).shpSwitch.FillColor = pressed ? kPressed : kWhite;
}

void RadioPanelPicture::ShowSpeed(int side, int16_t speed) {
    At(side).labSpeed.Caption = SpeedText(speed);
}

void RadioPanelPicture::TurnRotary(int32_t rotary, int16_t degrees) {
    int16_t& angle = rotAngles_[static_cast<size_t>(rotary)];
    angle = TurnedAngle(angle, degrees);
    Side& side = At(rotary / 2 + 1);
    if (rotary % 2 == 0) {
        side.lineInnRot.PointTo(angle, kInnerRadius);
    } else {
        side.lineOutRot.PointFrom(side.lineInnRot.X1, side.lineInnRot.Y1, angle, kInnerRadius,
                                  kOuterRadius);
    }
}
