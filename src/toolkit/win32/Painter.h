#pragma once

#include <windows.h>

#include "toolkit/Picture.h"
#include "toolkit/win32/PeerServices.h"

// Where a part of a Picture is drawn, in pixels of the screen.
RECT DrawnArea(const Control& control, Scale scale);

// Draws what a Canvas has room for of a Picture, at the Canvas's scale.
class Painter {
  public:
    Painter(HDC dc, const PeerServices& services) : dc_(dc), services_(services) {}

    void Draw(const Picture& picture);

  private:
    void Draw(const Label& label);
    void Draw(const Shape& shape);
    void Draw(const Line& line);
    void DrawPart(const Control& part);

    int ToDots(int32_t twips) const;
    int PenWidth(int32_t twips) const;
    RECT AreaOf(const Control& control) const;
    bool IsIn(const Control& control) const;

    HDC dc_;
    const PeerServices& services_;
};
