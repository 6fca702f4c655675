#include "ui/PlaceForm.h"

#include <cstdlib>

#include "base/Number.h"
#include "toolkit/UiBackend.h"

namespace {

int32_t Halved(int32_t value) { return RoundTo<int32_t>(value / 2.0); }

void CentreOn(Form& form, const ScreenRect& rect) {
    const Scale scale = form.Ui().ScreenScale();
    const auto centred = [scale](int32_t from, int32_t to, int32_t size) {
        return scale.ToTwips(Halved(std::abs(to - from) - scale.ToPixels(size)) + from);
    };
    form.Left = centred(rect.left, rect.right, form.Width);
    form.Top = centred(rect.top, rect.bottom, form.Height);
}

}  // namespace

void PlaceForm(Form& form, int32_t left, int32_t top, const std::vector<ScreenRect>& MonitorRects,
               ScreenPort& screen) {
    if (MonitorRects.empty()) {
        form.Left = 0;
        form.Top = 0;
        return;
    }
    if (left == 0 && top == 0) {
        CentreOn(form, MonitorRects.front());
        return;
    }
    // A hand-edited position may be any number; beyond these no monitor can be.
    constexpr int32_t kFarthest = 100'000'000;
    if (std::abs(int64_t{left}) > kFarthest || std::abs(int64_t{top}) > kFarthest) left = top = 0;
    const Scale scale = form.Ui().ScreenScale();
    const ScreenRect rect = {scale.ToPixels(left), scale.ToPixels(top),
                             scale.ToPixels(left + form.Width), scale.ToPixels(top + form.Height)};
    const ScreenRect area = screen.NearestWorkArea(rect);
    if (rect.left > area.left && rect.top > area.top && rect.right < area.right &&
        rect.bottom < area.bottom) {
        form.Left = left;
        form.Top = top;
    } else {
        CentreOn(form, area);
    }
}
