#include "ui/Emblem.h"

#include <algorithm>

#include "base/Number.h"

namespace {

constexpr Color kRim = 0x2C2723;
constexpr Color kFace = 0x30C8FF;
constexpr Color kTicks = 0x00567A;
constexpr Color kAircraft = 0x1D1916;
constexpr Color kGround = 0x8000000F;
constexpr double kMiddle = 32;

// From one end to the other, and the width.
constexpr struct {
    double x1, y1, x2, y2, width;
} kBars[] = {
    {32, 14, 32, 51, 6},  // fuselage
    {31, 28, 13, 38, 5},  // wings
    {33, 28, 51, 38, 5},  //
    {31, 48, 25, 52, 3},  // tailplane
    {33, 48, 39, 52, 3},
};

}  // namespace

Emblem::Emblem(Picture& picture)
    : unit_(std::min(picture.Width.Get(), picture.Height.Get()) / (2 * kMiddle)) {
    picture.BackColor = kGround;
    AddDisc(picture, 31, kRim);
    AddDisc(picture, 27.5, kFace);
    for (int tick = 0; tick < 12; ++tick) {
        auto line = std::make_unique<Line>(&picture);
        line->BorderColor = kTicks;
        line->BorderWidth = RoundTo<int32_t>(1.4 * unit_);
        const auto middle = RoundTo<int32_t>(kMiddle * unit_);
        const double inner = tick % 3 == 0 ? 22.5 : 24;
        line->PointFrom(middle, middle, 30.0 * tick, RoundTo<int32_t>(inner * unit_),
                        RoundTo<int32_t>(26 * unit_));
        parts_.push_back(std::move(line));
    }
    for (const auto& bar : kBars) AddBar(picture, bar.x1, bar.y1, bar.x2, bar.y2, bar.width);
}

void Emblem::AddDisc(Picture& picture, double radius, Color color) {
    auto disc = std::make_unique<Shape>(&picture);
    disc->Kind = ShapeKind::Oval;
    disc->FillColor = color;
    disc->BorderWidth = 0;
    const auto corner = RoundTo<int32_t>((kMiddle - radius) * unit_);
    const auto size = RoundTo<int32_t>(2 * radius * unit_);
    disc->Move(corner, corner, size, size);
    parts_.push_back(std::move(disc));
}

void Emblem::AddBar(Picture& picture, double x1, double y1, double x2, double y2, double width) {
    auto bar = std::make_unique<Line>(&picture);
    bar->BorderColor = kAircraft;
    bar->BorderWidth = RoundTo<int32_t>(width * unit_);
    bar->X1 = RoundTo<int32_t>(x1 * unit_);
    bar->Y1 = RoundTo<int32_t>(y1 * unit_);
    bar->X2 = RoundTo<int32_t>(x2 * unit_);
    bar->Y2 = RoundTo<int32_t>(y2 * unit_);
    parts_.push_back(std::move(bar));
}
