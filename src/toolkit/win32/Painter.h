#pragma once

#include <windows.h>

#include "toolkit/Picture.h"
#include "toolkit/UiBackend.h"
#include "toolkit/win32/FontCache.h"

// Where a Label, Shape or Line of a Picture is drawn, in pixels of the screen.
RECT DrawnArea(const Control& control);

// Draws what a Canvas has room for of a Picture, at the Canvas's scale.
class Painter : private ControlVisitor {
  public:
    Painter(HDC dc, FontCache& fonts) : dc_(dc), fonts_(fonts) {}

    void Draw(Picture& picture);

  private:
    void Visit(Label& label) override;
    void Visit(Shape& shape) override;
    void Visit(Line& line) override;

    // These have windows of their own.
    void Visit(Form&) override {}
    void Visit(Container&) override {}
    void Visit(Frame&) override {}
    void Visit(Picture&) override {}
    void Visit(CommandButton&) override {}
    void Visit(ComboBox&) override {}
    void Visit(TabStrip&) override {}
    void Visit(StatusBar&) override {}

    HDC dc_;
    FontCache& fonts_;
};
