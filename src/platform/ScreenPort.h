#pragma once

#include <cstdint>
#include <vector>

// In pixels; right and bottom are the first beyond.
struct ScreenRect {
    int32_t left = 0;
    int32_t top = 0;
    int32_t right = 0;
    int32_t bottom = 0;

    bool operator==(const ScreenRect&) const = default;
};

class ScreenPort {
  public:
    virtual ~ScreenPort() = default;

    // Rectangle of each monitor, in the system's order.
    virtual std::vector<ScreenRect> EnumDisplayMonitors() = 0;
    // Work area of the monitor nearest to the rectangle.
    virtual ScreenRect NearestWorkArea(const ScreenRect& rect) = 0;
};
