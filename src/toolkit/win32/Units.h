#pragma once

#include <cstdint>

#include "toolkit/Control.h"

// Twips in pixels of which `scale` make one of the screen, to the nearest.
inline int ToPixels(int32_t twips, int scale = 1) {
    const int64_t twice = int64_t{twips} * scale * 2;
    const int64_t half = twips < 0 ? -kTwipsPerPixel : kTwipsPerPixel;
    return static_cast<int>((twice + half) / (2 * kTwipsPerPixel));
}

inline int32_t ToTwips(int pixels) { return pixels * kTwipsPerPixel; }
