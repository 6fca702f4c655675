#include "ui/PlaceForm.h"

#include <cstdlib>

#include "base/Number.h"

namespace {

// Nearest whole number, as positions are stored in twips and compared in pixels.
int32_t Divide(int32_t value, int32_t by) {
    return RoundTo<int32_t>(static_cast<double>(value) / by);
}

int32_t Pixels(int32_t twips) { return Divide(twips, kTwipsPerPixel); }

int32_t Centred(int32_t from, int32_t to, int32_t size) {
    return (Divide(std::abs(to - from) - Pixels(size), 2) + from) * kTwipsPerPixel;
}

void CentreOn(Form& form, const ScreenRect& rect) {
    form.Left = Centred(rect.left, rect.right, form.Width);
    form.Top = Centred(rect.top, rect.bottom, form.Height);
}

}  // namespace

void PlaceForm(Form& form, int32_t left, int32_t top, const std::vector<ScreenRect>& MonitorRects,
               ScreenPort& screen) {
    if (left == 0 && top == 0) {
        if (!MonitorRects.empty()) CentreOn(form, MonitorRects.front());
        return;
    }
    // A hand-edited position may be any number; beyond these no monitor can be.
    constexpr int32_t kFarthest = 100'000'000;
    if (std::abs(int64_t{left}) > kFarthest || std::abs(int64_t{top}) > kFarthest) left = top = 0;
    const ScreenRect rect = {Pixels(left), Pixels(top), Pixels(left + form.Width),
                             Pixels(top + form.Height)};
    const ScreenRect area = screen.NearestWorkArea(rect);
    if (rect.left > area.left && rect.top > area.top && rect.right < area.right &&
        rect.bottom < area.bottom) {
        form.Left = left;
        form.Top = top;
    } else {
        CentreOn(form, area);
    }
}
