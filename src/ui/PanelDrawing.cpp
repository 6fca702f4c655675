#include "ui/PanelDrawing.h"

namespace {

constexpr Color kDigits = 0x30A0FF;

constexpr PanelShape kBodyShape = {
    ShapeKind::RoundedRectangle, 15, 15, 10875, 2835, PanelColor::kBody, PanelColor::kRim};

}  // namespace

PanelBody::PanelBody(Picture& panel, std::span<const PanelShape> shapes,
                     std::span<const PanelCaption> captions, std::initializer_list<int32_t> rows) {
    panel.BackColor = PanelColor::kBody;
    Add(panel, kBodyShape, 0);
    for (const int32_t down : rows) {
        for (const PanelShape& row : shapes) Add(panel, row, down);
        for (const PanelCaption& row : captions) Add(panel, row, down);
    }
}

void PanelBody::Add(Picture& panel, const PanelShape& row, int32_t down) {
    auto shape = std::make_unique<Shape>(&panel);
    shape->Kind = row.kind;
    shape->FillColor = row.fill;
    shape->BorderColor = row.border;
    shape->Move(row.left, row.top + down, row.width, row.height);
    parts_.push_back(std::move(shape));
}

void PanelBody::Add(Picture& panel, const PanelCaption& row, int32_t down) {
    auto label = std::make_unique<Label>(&panel);
    label->Caption = row.text;
    label->Align = Alignment::Center;
    label->ForeColor = PanelColor::kPrint;
    label->FontHeight = row.fontHeight;
    label->Move(row.left, row.top + down, row.width, row.fontHeight + 60);
    parts_.push_back(std::move(label));
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
