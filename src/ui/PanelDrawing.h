#pragma once

#include <cstdint>
#include <initializer_list>
#include <memory>
#include <span>
#include <vector>

#include "toolkit/Picture.h"

// What the drawings of the panels have in common. Co-ordinates are twips within the picture.

namespace PanelColor {
inline constexpr Color kBody = 0x2A2A2A;
inline constexpr Color kRim = 0x555555;
inline constexpr Color kKnob = 0x484848;
inline constexpr Color kKnobRim = 0x707070;
inline constexpr Color kWell = 0x101010;  // displays and slots
inline constexpr Color kPrint = 0xE0E0E0;
inline constexpr Color kWhite = 0xFFFFFF;
inline constexpr Color kPressed = 0x0000FF;
}  // namespace PanelColor

struct PanelShape {
    ShapeKind kind;
    int32_t left, top, width, height;
    Color fill;
    Color border;
};

struct PanelCaption {
    int32_t left, top, width;
    int32_t fontHeight;
    const char* text;
};

// What never changes in the drawing of a panel: the body, dials, scales and captions. It is made
// first, as all else lies in front of it.
class PanelBody {
  public:
    // Shapes and captions are drawn once for each of `shifts`, that far down.
    PanelBody(Picture& panel, std::span<const PanelShape> shapes,
              std::span<const PanelCaption> captions, std::initializer_list<int32_t> shifts = {0});

  private:
    void Add(Picture& panel, const PanelShape& shape, int32_t shift);
    void Add(Picture& panel, const PanelCaption& caption, int32_t shift);

    std::vector<std::unique_ptr<Control>> parts_;
};

// A display of digits of this height, as many as its width has room for.
void PlaceDisplay(Label& label, int32_t left, int32_t top, int32_t width, int32_t height);
void PlaceSpeed(Label& label, int32_t left, int32_t top, int32_t width);
// Straight up, from a point.
void PlacePointer(Line& line, int32_t x, int32_t y, int32_t length);

// Of the speeds of a knob or wheel: 1, 5, 10 or 20.
const char* SpeedText(int16_t speed);

// Stays within 0 to 360, both included.
int16_t TurnedAngle(int16_t angle, int16_t degrees);
