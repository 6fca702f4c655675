#include "toolkit/Picture.h"

#include <cmath>
#include <numbers>

#include "base/Number.h"
#include "toolkit/UiBackend.h"

void Picture::Accept(ControlVisitor& visitor) { visitor.Visit(*this); }

void Label::Accept(ControlVisitor& visitor) { visitor.Visit(*this); }

void Shape::Accept(ControlVisitor& visitor) { visitor.Visit(*this); }

void Line::PointFrom(int32_t x, int32_t y, double degrees, int32_t from, int32_t to) {
    const double angle = (degrees - 90.0) * std::numbers::pi / 180.0;
    const double across = std::cos(angle);
    const double down = std::sin(angle);
    X1 = RoundTo<int32_t>(x + from * across);
    Y1 = RoundTo<int32_t>(y + from * down);
    X2 = RoundTo<int32_t>(x + to * across);
    Y2 = RoundTo<int32_t>(y + to * down);
}

void Line::Accept(ControlVisitor& visitor) { visitor.Visit(*this); }
