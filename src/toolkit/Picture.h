#pragma once

#include "base/Event.h"
#include "toolkit/Container.h"

// A container that is drawn as a whole, with its labels, shapes and lines in the order in which
// they came; buttons on it are native ones in front.
class Picture : public Container {
  public:
    using Container::Container;

    Property<Color, Control> BackColor{*this, 0};

    Event<> Click;  // anywhere on it, after that of a part

    // The user clicks at a point, in twips.
    void Press(int32_t x, int32_t y);
};

// What may be part of a Picture's drawing.
class PicturePart : public Control {
  public:
    using Control::Control;

    Event<> Click;  // on this part of the drawing, where nothing is drawn over it

    bool Covers(int32_t x, int32_t y) const;
    void Press() {
        if (TakesActs()) Click.Raise();
    }
};

enum class FontFace { Normal, Bold, SevenSegment };
enum class Alignment { Left, Center, Right };

// A text. On a Picture it is part of the drawing, elsewhere a native one. In the SevenSegment face
// it is a display with as many places as its width has room for.
class Label : public PicturePart {
  public:
    using PicturePart::PicturePart;

    Property<Color, Control> ForeColor{*this, 0};
    Property<FontFace, Control> Face{*this, FontFace::Normal};
    // Twips of the em, or of the digits of a SevenSegment face. The value from the start stands for
    // the system's own text size.
    Property<int32_t, Control> FontHeight{*this, 195};
    Property<Alignment, Control> Align{*this, Alignment::Left};
    // Whether the places of a SevenSegment face have points. Where they don't, a point of the
    // caption takes a place of its own, which is blank.
    Property<bool, Control> HasPoints{*this, true};
    // Whether the letter behind an "&" takes the keyboard to the next control. Where it doesn't, as
    // in a text that isn't the program's own, an "&" is shown as it stands. Not on a Picture.
    Property<bool, Control> HasMnemonic{*this, false};
};

enum class ShapeKind { Rectangle, RoundedRectangle, Oval };

// A filled figure of a Picture.
class Shape : public PicturePart {
  public:
    using PicturePart::PicturePart;

    Property<ShapeKind, Control> Kind{*this, ShapeKind::Rectangle};
    Property<Color, Control> FillColor{*this, 0xFFFFFF};
    Property<Color, Control> BorderColor{*this, 0};
    Property<int32_t, Control> BorderWidth{*this, 15};  // twips; 0 for none
};

// A straight line of a Picture, between two points in the Picture's co-ordinates. Left, Top, Width
// and Height mean nothing here.
class Line : public PicturePart {
  public:
    using PicturePart::PicturePart;

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
};
