#include "toolkit/Picture.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "base/Number.h"

bool PicturePart::Covers(int32_t x, int32_t y) const {
    return Visible && x >= Left && x < Left + Width && y >= Top && y < Top + Height;
}

void Picture::Press(int32_t x, int32_t y) {
    if (!TakesActs()) return;
    const auto& parts = Children();
    const auto hit = std::find_if(parts.rbegin(), parts.rend(), [x, y](const Control* child) {
        const auto* part = dynamic_cast<const PicturePart*>(child);
        return part && part->Covers(x, y);
    });
    if (hit != parts.rend()) static_cast<PicturePart*>(*hit)->Press();
    Click.Raise();
}

void Line::PointFrom(int32_t x, int32_t y, double degrees, int32_t from, int32_t to) {
    const double angle = (degrees - 90.0) * std::numbers::pi / 180.0;
    const double across = std::cos(angle);
    const double down = std::sin(angle);
    X1 = RoundTo<int32_t>(x + from * across);
    Y1 = RoundTo<int32_t>(y + from * down);
    X2 = RoundTo<int32_t>(x + to * across);
    Y2 = RoundTo<int32_t>(y + to * down);
}
