#include "panels/multi/MultiPanelPicture.h"

namespace {

using namespace PanelColor;

constexpr Color kYellow = 0x00FFFF;

constexpr PanelShape kShapes[] = {
    {ShapeKind::Oval, 420, 600, 840, 840, kKnob, kKnobRim},                // selector
    {ShapeKind::Rectangle, 3000, 240, 2700, 780, kWell, kRim},             // upper display
    {ShapeKind::Rectangle, 3000, 1140, 2700, 780, kWell, kRim},            // lower display
    {ShapeKind::Oval, 6510, 420, 1200, 1200, kKnob, kKnobRim},             // knob
    {ShapeKind::RoundedRectangle, 8100, 1740, 1020, 345, kWell, kRim},     // auto-throttle slot
    {ShapeKind::RoundedRectangle, 8520, 720, 180, 780, kWell, kRim},       // flaps slot
    {ShapeKind::RoundedRectangle, 9660, 480, 840, 1905, kKnob, kKnobRim},  // trim wheel
};

constexpr PanelCaption kCaptions[] = {
    {540, 270, 600, 135, "ALT"},    {150, 420, 330, 135, "VS"},
    {30, 750, 330, 135, "IAS"},     {30, 1125, 330, 135, "HDG"},
    {240, 1500, 390, 135, "CRS"},   {7860, 1500, 1500, 165, "AUTO THROTTLE"},
    {8070, 2115, 540, 165, "OFF"},  {8610, 2115, 540, 165, "ARM"},
    {8250, 210, 720, 165, "FLAPS"}, {8310, 465, 600, 165, "UP"},
    {8820, 1185, 330, 165, "DN"},   {9540, 180, 1080, 165, "PITCH TRIM"},
};

constexpr int32_t kPointerLength = 500;
constexpr int32_t kTrimStep = 120;
constexpr int32_t kTrimTop = 600;
constexpr int32_t kTrimBottom = 2340;

struct SelectorPosition {
    int32_t bit;
    double degrees;
    const char* upperMode;
    const char* lowerMode;
};

constexpr SelectorPosition kPositions[] = {
    {MultiPanelBit::kSelectorALT, 0, "ALT", " VS"}, {MultiPanelBit::kSelectorVS, 320, "ALT", " VS"},
    {MultiPanelBit::kSelectorIAS, 285, "IAS", ""},  {MultiPanelBit::kSelectorHDG, 255, "HDG", ""},
    {MultiPanelBit::kSelectorCRS, 210, "CRS", ""},
};

}  // namespace

MultiPanelPicture::MultiPanelPicture(Picture& panel)
    : body_(panel, kShapes, kCaptions),
      labUpperValue(&panel),
      labLowerValue(&panel),
      labUpperMode(&panel),
      labLowerMode(&panel),
      labSpeed(&panel),
      labSpeed2(&panel),
      SelectorSign(&panel),
      RotarySign(&panel),
      lineTrim(&panel),
      shpFlapsLever(&panel),
      shpATLever(&panel) {
    PlaceButtons(panel);
    PlaceLabels();
    PlacePointersAndLevers();
}

void MultiPanelPicture::PlaceButtons(Picture& panel) {
    int32_t left = 1320;
    for (size_t i = 0; i < kMultiPanelButtons.size(); ++i, left += 780) {
        shpButton[i] = std::make_unique<Shape>(&panel);
        shpButton[i]->Kind = ShapeKind::RoundedRectangle;
        shpButton[i]->FillColor = kWhite;
        shpButton[i]->Move(left, 2160, 690, 420);
        buttonCaptions_[i] = std::make_unique<Label>(&panel);
        buttonCaptions_[i]->Caption = kMultiPanelButtons[i].caption;
        buttonCaptions_[i]->Align = Alignment::Center;
        buttonCaptions_[i]->Face = FontFace::Bold;
        buttonCaptions_[i]->Move(left, 2265, 690, 240);
    }
}

void MultiPanelPicture::PlaceLabels() {
    PlaceDisplay(labUpperValue, 3110, 330, 2500, 600);
    PlaceDisplay(labLowerValue, 3110, 1230, 2500, 600);
    labUpperValue.HasPoints = false;
    labLowerValue.HasPoints = false;
    const auto placeMode = [](Label& label, int32_t top) {
        label.Face = FontFace::Bold;
        label.ForeColor = kPrint;
        label.Align = Alignment::Right;
        label.Move(2100, top, 780, 270);
    };
    placeMode(labUpperMode, 510);
    placeMode(labLowerMode, 1410);
    PlaceSpeed(labSpeed, 6810, 1680, 600);
    PlaceSpeed(labSpeed2, 9240, 1980, 360);
}

void MultiPanelPicture::PlacePointersAndLevers() {
    PlacePointer(SelectorSign, 840, 1020, kPointerLength);
    PlacePointer(RotarySign, 7110, 1020, kPointerLength);
    lineTrim.BorderColor = kPrint;
    lineTrim.BorderWidth = 60;
    lineTrim.X1 = 9735;
    lineTrim.X2 = 10425;
    MoveTrimBar(1440);
    shpFlapsLever.Kind = ShapeKind::RoundedRectangle;
    shpFlapsLever.FillColor = kPrint;
    shpFlapsLever.Move(8370, 960, 480, 300);
    shpATLever.Kind = ShapeKind::RoundedRectangle;
    shpATLever.FillColor = kPrint;
    shpATLever.Move(8160, 1785, 480, 255);
}

void MultiPanelPicture::ShowSelector(int32_t bits) {
    double degrees = 0;
    for (const SelectorPosition& position : kPositions) {
        if (position.bit != bits) continue;
        degrees = position.degrees;
        labUpperMode.Caption = position.upperMode;
        labLowerMode.Caption = position.lowerMode;
    }
    SelectorSign.PointTo(degrees, kPointerLength);
}

void MultiPanelPicture::ShowButton(int32_t mask, bool pressed) {
    for (size_t i = 0; i < kMultiPanelButtons.size(); ++i) {
        const MultiPanelButton& button = kMultiPanelButtons[i];
        if (button.mask != mask) continue;
        const Color released = lightBits_ & button.light ? kYellow : kWhite;
        shpButton[i]->FillColor = pressed ? kPressed : released;
    }
}

void MultiPanelPicture::ShowLights(uint8_t lights) {
    lightBits_ = lights;
    for (size_t i = 0; i < kMultiPanelButtons.size(); ++i) {
        if (shpButton[i]->FillColor == kPressed) continue;
        shpButton[i]->FillColor = lights & kMultiPanelButtons[i].light ? kYellow : kWhite;
    }
}

void MultiPanelPicture::ShowSpeed(Label& label, int16_t speed) { label.Caption = SpeedText(speed); }

void MultiPanelPicture::ShowFlaps(int direction) { shpFlapsLever.Top = 960 - 180 * direction; }

void MultiPanelPicture::ShowAutoThrottle(bool armed) { shpATLever.Left = armed ? 8580 : 8160; }

void MultiPanelPicture::TrimUp() {
    const int32_t y = lineTrim.Y1 - kTrimStep;
    MoveTrimBar(y < kTrimTop ? kTrimBottom : y);
}

void MultiPanelPicture::TrimDown() {
    const int32_t y = lineTrim.Y1 + kTrimStep;
    MoveTrimBar(y > kTrimBottom ? kTrimTop : y);
}

void MultiPanelPicture::MoveTrimBar(int32_t y) {
    lineTrim.Y1 = y;
    lineTrim.Y2 = y;
}

void MultiPanelPicture::TurnRotary(int16_t degrees) {
    rotAngle_ = TurnedAngle(rotAngle_, degrees);
    RotarySign.PointTo(rotAngle_, kPointerLength);
}
