#pragma once

#include <windows.h>

#include <cstdint>

#include "toolkit/win32/GdiHandle.h"

// Part of a window's area in memory, drawn larger than it is shown so that its edges come out
// smooth. One after the other can be drawn; a small one's memory serves again.
class Canvas {
  public:
    static constexpr int kScale = 2;  // pixels to draw on for one of the screen, each way

    Canvas() = default;
    Canvas(const Canvas&) = delete;
    Canvas& operator=(const Canvas&) = delete;
    ~Canvas() { Drop(); }

    // `area` is in pixels of the window, whose corner is the origin of the device context. Null if
    // there was no memory or the area is empty.
    HDC Begin(const RECT& area);

    void CopyTo(HDC target);

  private:
    void MakeRoom();
    void Drop();
    void Reduce();

    RECT area_{};
    int width_ = 0;
    int height_ = 0;
    int roomWidth_ = 0;  // of the bitmap, in its own pixels
    int roomHeight_ = 0;
    HDC dc_ = nullptr;
    uint32_t* pixels_ = nullptr;
    GdiHandle<HBITMAP> bitmap_;
    HGDIOBJ before_ = nullptr;
};
