#include "ui/PanelDrawing.h"

namespace {

constexpr Color kDigits = 0x30A0FF;

constexpr PanelShape kBodyShape = {
    ShapeKind::RoundedRectangle, 15, 15, 10875, 2835, PanelColor::kBody, PanelColor::kRim};

}  // namespace

PanelBody::PanelBody(Picture& panel, std::span<const PanelShape> shapes,
                     std::span<const PanelCaption> captions,
                     std::initializer_list<int32_t> shifts) {
    panel.BackColor = PanelColor::kBody;
    Add(panel, kBodyShape, 0);
    for (const int32_t shift : shifts) {
        for (const PanelShape& shape : shapes) Add(panel, shape, shift);
        for (const PanelCaption& caption : captions) Add(panel, caption, shift);
    }
}

void PanelBody::Add(Picture& panel, const PanelShape& shape, int32_t shift) {
    auto part = std::make_unique<Shape>(&panel);
    part->Kind = shape.kind;
    part->FillColor = shape.fill;
    part->BorderColor = shape.border;
    part->Move(shape.left, shape.top + shift, shape.width, shape.height);
    parts_.push_back(std::move(part));
}

void PanelBody::Add(Picture& panel, const PanelCaption& caption, int32_t shift) {
    auto part = std::make_unique<Label>(&panel);
    part->Caption = caption.text;
    part->Align = Alignment::Center;
    part->ForeColor = PanelColor::kPrint;
    part->FontHeight = caption.fontHeight;
    part->Move(caption.left, caption.top + shift, caption.width, 225);
    parts_.push_back(std::move(part));
}

void PlaceDisplay(Label& label, int32_t left, int32_t top, int32_t width, int32_t height) {
    label.Face = FontFace::SevenSegment;
    label.ForeColor = kDigits;
    label.Align = Alignment::Right;
    label.FontHeight = height;
    label.Move(left, top, width, height);
}

void PlaceSpeed(Label& label, int32_t left, int32_t top, int32_t width) {
    label.ForeColor = PanelColor::kPrint;
    label.Align = Alignment::Center;
    label.Move(left, top, width, 240);
}

void PlacePointer(Line& line, int32_t x, int32_t y, int32_t length) {
    line.BorderColor = PanelColor::kWhite;
    line.BorderWidth = 60;
    line.X1 = x;
    line.Y1 = y;
    line.PointTo(0, length);
}

const char* SpeedText(int16_t speed) {
    return speed == 1 ? "1" : speed == 5 ? "5" : speed == 10 ? "10" : "20";
}

int16_t TurnedAngle(int16_t angle, int16_t degrees) {
    int turned = angle + degrees;
    if (turned > 360) turned -= 360;
    if (turned < 0) turned += 360;
    return static_cast<int16_t>(turned);
}
