#include "toolkit/Picture.h"

#include <cmath>
#include <numbers>

#include "base/Number.h"
#include "toolkit/UiBackend.h"

void Picture::Accept(ControlVisitor& visitor) { visitor.Visit(*this); }

void Label::Accept(ControlVisitor& visitor) { visitor.Visit(*this); }

void Shape::Accept(ControlVisitor& visitor) { visitor.Visit(*this); }

void Line::PointTo(double degrees, int32_t radius) {
    const double angle = (degrees - 90.0) * std::numbers::pi / 180.0;
    X2 = RoundTo<int32_t>(X1 + radius * std::cos(angle));
    Y2 = RoundTo<int32_t>(Y1 + radius * std::sin(angle));
}

void Line::Accept(ControlVisitor& visitor) { visitor.Visit(*this); }
