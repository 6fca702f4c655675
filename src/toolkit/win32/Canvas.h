#pragma once

#include <windows.h>

#include <cstdint>

#include "toolkit/win32/GdiHandle.h"

// Part of a window's area in memory, drawn larger than it is shown so that its edges come out
// smooth.
class Canvas {
  public:
    static constexpr int kScale = 2;  // pixels to draw on for one of the screen, each way

    // In pixels of the window. The window's corner is the origin of the device context.
    explicit Canvas(const RECT& area);
    Canvas(const Canvas&) = delete;
    Canvas& operator=(const Canvas&) = delete;
    ~Canvas();

    // Null if there was no memory or the area is empty.
    HDC Dc() const { return bitmap_ ? dc_ : nullptr; }

    void CopyTo(HDC target);

  private:
    void Reduce();

    RECT area_;
    int width_;
    int height_;
    HDC dc_;
    uint32_t* pixels_ = nullptr;
    GdiHandle<HBITMAP> bitmap_;
    HGDIOBJ before_ = nullptr;
};
