#include "platform/virtual/VirtualScreen.h"

#include <algorithm>
#include <limits>

namespace {

// How far two stretches lie apart, 0 or less when they meet: then by how much they overlap.
int64_t Gap(int32_t low, int32_t high, int32_t otherLow, int32_t otherHigh) {
    return std::max<int64_t>(low, otherLow) - std::min<int64_t>(high, otherHigh);
}

// Less is nearer: overlapping areas count as negative, the distance squared as positive.
int64_t Distance(const ScreenRect& a, const ScreenRect& b) {
    const int64_t x = Gap(a.left, a.right, b.left, b.right);
    const int64_t y = Gap(a.top, a.bottom, b.top, b.bottom);
    if (x < 0 && y < 0) return -x * y;
    const int64_t dx = std::max<int64_t>(x, 0);
    const int64_t dy = std::max<int64_t>(y, 0);
    return dx * dx + dy * dy;
}

}  // namespace

std::vector<ScreenRect> VirtualScreen::EnumDisplayMonitors() {
    std::vector<ScreenRect> bounds;
    for (const Monitor& monitor : monitors) bounds.push_back(monitor.bounds);
    return bounds;
}

ScreenRect VirtualScreen::NearestWorkArea(const ScreenRect& rect) {
    ScreenRect nearest;
    int64_t best = std::numeric_limits<int64_t>::max();
    for (const Monitor& monitor : monitors) {
        const int64_t distance = Distance(rect, monitor.bounds);
        if (distance >= best) continue;
        best = distance;
        nearest = monitor.workArea;
    }
    return nearest;
}
