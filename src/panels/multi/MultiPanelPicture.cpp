#include "panels/multi/MultiPanelPicture.h"

#include <string>

namespace {

constexpr Color kRed = 0x0000FF;
constexpr Color kYellow = 0x00FFFF;
constexpr Color kWhite = 0xFFFFFF;
constexpr Color kDigits = 0x30A0FF;
constexpr Color kPrint = 0xE0E0E0;

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

void PlacePointer(Line& line, int32_t x, int32_t y) {
    line.BorderColor = kWhite;
    line.BorderWidth = 60;
    line.X1 = x;
    line.Y1 = y;
    line.PointTo(0, kPointerLength);
}

}  // namespace

MultiPanelPicture::MultiPanelPicture(Picture& panel)
    : body_(panel),
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
    const auto place = [](Label& label, FontFace face, Color color, Alignment align) {
        label.Face = face;
        label.ForeColor = color;
        label.Align = align;
    };
    place(labUpperValue, FontFace::SevenSegment, kDigits, Alignment::Right);
    labUpperValue.FontHeight = 600;
    labLowerValue.FontHeight = 600;
    labUpperValue.Move(3110, 330, 2500, 600);
    place(labLowerValue, FontFace::SevenSegment, kDigits, Alignment::Right);
    labLowerValue.Move(3110, 1230, 2500, 600);
    place(labUpperMode, FontFace::Bold, kPrint, Alignment::Right);
    labUpperMode.Move(2100, 510, 780, 270);
    place(labLowerMode, FontFace::Bold, kPrint, Alignment::Right);
    labLowerMode.Move(2100, 1410, 780, 270);
    place(labSpeed, FontFace::Normal, kPrint, Alignment::Center);
    labSpeed.Move(6810, 1680, 600, 240);
    place(labSpeed2, FontFace::Normal, kPrint, Alignment::Center);
    labSpeed2.Move(9240, 1980, 360, 240);
}

void MultiPanelPicture::PlacePointersAndLevers() {
    PlacePointer(SelectorSign, 840, 1020);
    PlacePointer(RotarySign, 7110, 1020);
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
        shpButton[i]->FillColor = pressed ? kRed : released;
    }
}

void MultiPanelPicture::ShowLights(uint8_t lights) {
    lightBits_ = lights;
    for (size_t i = 0; i < kMultiPanelButtons.size(); ++i) {
        if (shpButton[i]->FillColor == kRed) continue;
        shpButton[i]->FillColor = lights & kMultiPanelButtons[i].light ? kYellow : kWhite;
    }
}

void MultiPanelPicture::ShowSpeed(Label& label, int16_t speed) {
    label.Caption = speed == 1 ? "1" : speed == 5 ? "5" : speed == 10 ? "10" : "20";
}

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
    int angle = rotAngle_ + degrees;
    if (angle > 360) angle -= 360;
    if (angle < 0) angle += 360;
    rotAngle_ = static_cast<int16_t>(angle);
    RotarySign.PointTo(rotAngle_, kPointerLength);
}
