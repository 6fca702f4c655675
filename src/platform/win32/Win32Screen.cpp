#include "platform/win32/Win32Screen.h"

#include <windows.h>

namespace {

ScreenRect FromRect(const RECT& rect) { return {rect.left, rect.top, rect.right, rect.bottom}; }

BOOL CALLBACK AddMonitor(HMONITOR, HDC, RECT* rect, LPARAM monitors) {
    reinterpret_cast<std::vector<ScreenRect>*>(monitors)->push_back(FromRect(*rect));
    return TRUE;
}

}  // namespace

std::vector<ScreenRect> Win32Screen::EnumDisplayMonitors() {
    std::vector<ScreenRect> monitors;
    ::EnumDisplayMonitors(nullptr, nullptr, AddMonitor, reinterpret_cast<LPARAM>(&monitors));
    return monitors;
}

ScreenRect Win32Screen::NearestWorkArea(const ScreenRect& rect) {
    const RECT wanted{rect.left, rect.top, rect.right, rect.bottom};
    MONITORINFO info{};
    info.cbSize = sizeof info;
    GetMonitorInfoA(MonitorFromRect(&wanted, MONITOR_DEFAULTTONEAREST), &info);
    return FromRect(info.rcWork);
}
