#pragma once

#include "platform/ScreenPort.h"

// Monitors that a test sets; one of 1920 by 1040 pixels above a task bar at first.
class VirtualScreen : public ScreenPort {
  public:
    struct Monitor {
        ScreenRect bounds;
        ScreenRect workArea;
    };

    std::vector<ScreenRect> EnumDisplayMonitors() override;
    // An empty rectangle without any monitor.
    ScreenRect NearestWorkArea(const ScreenRect& rect) override;

    std::vector<Monitor> monitors{{{0, 0, 1920, 1080}, {0, 0, 1920, 1040}}};
};
