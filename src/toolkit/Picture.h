#pragma once

#include "toolkit/Container.h"

// A container that is drawn as a whole, with its labels, shapes and lines in the order in which
// they came; buttons on it are native ones in front.
class Picture : public Container {
  public:
    using Container::Container;

    Property<Color, Control> BackColor{*this, 0};

    void Accept(ControlVisitor& visitor) override;
};

enum class FontFace { Normal, Bold, SevenSegment };
enum class Alignment { Left, Center, Right };

// A line of text. On a Picture it is part of the drawing, elsewhere a native one. In the
// SevenSegment face it is a display with as many places as its width has room for.
class Label : public Control {
  public:
    using Control::Control;

    Property<std::string, Control> Caption{*this, {}};
    Property<Color, Control> ForeColor{*this, 0};
    Property<FontFace, Control> Face{*this, FontFace::Normal};
    // Twips of the em, or of the digits of a SevenSegment face. The value from the start stands for
    // the system's own text size.
    Property<int32_t, Control> FontHeight{*this, 195};
    Property<Alignment, Control> Align{*this, Alignment::Left};
    // Whether the places of a SevenSegment face have points. Where they don't, a point of the
    // caption takes a place of its own, which is blank.
    Property<bool, Control> HasPoints{*this, true};

    void Accept(ControlVisitor& visitor) override;
};

enum class ShapeKind { Rectangle, RoundedRectangle, Oval };

// A filled figure of a Picture.
class Shape : public Control {
  public:
    using Control::Control;

    Property<ShapeKind, Control> Kind{*this, ShapeKind::Rectangle};
    Property<Color, Control> FillColor{*this, 0xFFFFFF};
    Property<Color, Control> BorderColor{*this, 0};
    Property<int32_t, Control> BorderWidth{*this, 15};  // twips; 0 for none

    void Accept(ControlVisitor& visitor) override;
};

// A straight line of a Picture, between two points in the Picture's co-ordinates. Left, Top, Width
// and Height mean nothing here.
class Line : public Control {
  public:
    using Control::Control;

    Property<int32_t, Control> X1{*this, 0};
    Property<int32_t, Control> Y1{*this, 0};
    Property<int32_t, Control> X2{*this, 0};
    Property<int32_t, Control> Y2{*this, 0};
    Property<Color, Control> BorderColor{*this, 0};
    Property<int32_t, Control> BorderWidth{*this, 15};  // twips

    // Sets the end at `radius` twips from the start, `degrees` clockwise from straight up.
    void PointTo(double degrees, int32_t radius) { PointFrom(X1, Y1, degrees, 0, radius); }
    // Sets both ends, at these distances from a centre.
    void PointFrom(int32_t x, int32_t y, double degrees, int32_t from, int32_t to);

    void Accept(ControlVisitor& visitor) override;
};
