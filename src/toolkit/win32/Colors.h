#pragma once

#include <windows.h>

#include "toolkit/Control.h"

inline COLORREF ToColor(Color color) {
    if (color & 0x80000000) return GetSysColor(static_cast<int>(color & 0xFF));
    return color & 0xFFFFFF;
}
