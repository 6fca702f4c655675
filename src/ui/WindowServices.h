#pragma once

#include <vector>

#include "config/cSetupHolder.h"
#include "platform/Clock.h"
#include "platform/MessageLoop.h"
#include "platform/ScreenPort.h"
#include "toolkit/UiBackend.h"
#include "ui/WindowState.h"

// What windows work with; all of it outlives them.
struct WindowServices {
    UiBackend& ui;
    MessageLoop& loop;
    Clock& clock;
    ScreenPort& screen;
    const std::vector<ScreenRect>& monitorRects;
    cSetupHolder& generalSetup;
    WindowState& windows;
};
