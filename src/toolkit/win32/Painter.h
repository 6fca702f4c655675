#pragma once

#include <windows.h>

#include "toolkit/Picture.h"
#include "toolkit/win32/PeerServices.h"

// Where a part of a Picture is drawn, in pixels of the screen.
RECT DrawnArea(const Control& control, Scale scale);

// Draws an area of a Picture, at the scale of a Canvas.
class Painter {
  public:
    Painter(HDC dc, const PeerServices& services) : dc_(dc), services_(services) {}

    // `area` is in pixels of the screen.
    void Draw(const Picture& picture, const RECT& area);

  private:
    void Draw(const Label& label);
    void Draw(const Shape& shape);
    void Draw(const Line& line);
    void DrawPart(const Control& part);

    int ToDots(int32_t twips) const;
    int PenWidth(int32_t twips) const;
    RECT AreaOf(const Control& control) const;

    HDC dc_;
    const PeerServices& services_;
};
