#include "panels/multi/MultiPanelBody.h"

namespace {

constexpr Color kBody = 0x2A2A2A;
constexpr Color kRim = 0x555555;
constexpr Color kKnob = 0x484848;
constexpr Color kWell = 0x101010;
constexpr Color kPrint = 0xE0E0E0;

struct ShapeRow {
    ShapeKind kind;
    int32_t left, top, width, height;
    Color fill;
    Color border;
};

constexpr ShapeRow kShapes[] = {
    {ShapeKind::RoundedRectangle, 15, 15, 10875, 2835, kBody, kRim},       // body
    {ShapeKind::Oval, 420, 600, 840, 840, kKnob, 0x707070},                // selector
    {ShapeKind::Rectangle, 3000, 240, 2700, 780, kWell, kRim},             // upper display
    {ShapeKind::Rectangle, 3000, 1140, 2700, 780, kWell, kRim},            // lower display
    {ShapeKind::Oval, 6510, 420, 1200, 1200, kKnob, 0x707070},             // knob
    {ShapeKind::RoundedRectangle, 8100, 1740, 1020, 345, kWell, kRim},     // auto-throttle slot
    {ShapeKind::RoundedRectangle, 8520, 720, 180, 780, kWell, kRim},       // flaps slot
    {ShapeKind::RoundedRectangle, 9660, 480, 840, 1905, kKnob, 0x707070},  // trim wheel
};

struct CaptionRow {
    int32_t left, top, width;
    int32_t fontHeight;
    const char* text;
};

constexpr CaptionRow kCaptions[] = {
    {540, 270, 600, 135, "ALT"},    {150, 420, 330, 135, "VS"},
    {30, 750, 330, 135, "IAS"},     {30, 1125, 330, 135, "HDG"},
    {240, 1500, 390, 135, "CRS"},   {7860, 1500, 1500, 165, "AUTO THROTTLE"},
    {8070, 2115, 540, 165, "OFF"},  {8610, 2115, 540, 165, "ARM"},
    {8250, 210, 720, 165, "FLAPS"}, {8310, 465, 600, 165, "UP"},
    {8820, 1185, 330, 165, "DN"},   {9540, 180, 1080, 165, "PITCH TRIM"},
};

}  // namespace

MultiPanelBody::MultiPanelBody(Picture& panel) {
    panel.BackColor = kBody;
    AddShapes(panel);
    AddCaptions(panel);
}

void MultiPanelBody::AddShapes(Picture& panel) {
    for (const ShapeRow& row : kShapes) {
        auto shape = std::make_unique<Shape>(&panel);
        shape->Kind = row.kind;
        shape->FillColor = row.fill;
        shape->BorderColor = row.border;
        shape->Move(row.left, row.top, row.width, row.height);
        parts_.push_back(std::move(shape));
    }
}

void MultiPanelBody::AddCaptions(Picture& panel) {
    for (const CaptionRow& row : kCaptions) {
        auto label = std::make_unique<Label>(&panel);
        label->Caption = row.text;
        label->Align = Alignment::Center;
        label->ForeColor = kPrint;
        label->FontHeight = row.fontHeight;
        label->Move(row.left, row.top, row.width, 225);
        parts_.push_back(std::move(label));
    }
}
