#pragma once

#include "platform/ScreenPort.h"

class Win32Screen final : public ScreenPort {
  public:
    std::vector<ScreenRect> EnumDisplayMonitors() override;
    ScreenRect NearestWorkArea(const ScreenRect& rect) override;
};
