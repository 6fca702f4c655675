#pragma once

#include "toolkit/Scale.h"

class Canvas;
class FontCache;
class UiBackend;

// What peers work with; it outlives them.
struct PeerServices {
    UiBackend& ui;
    FontCache& fonts;
    Canvas& canvas;
    Scale scale;
};
