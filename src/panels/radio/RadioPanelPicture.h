#pragma once

#include <array>
#include <cstdint>

#include "toolkit/Picture.h"
#include "ui/PanelDrawing.h"

// The Radio Panel on the screen. Sides are numbered 1 upper, 2 lower; co-ordinates are twips within
// the picture.
class RadioPanelPicture {
  public:
    // What moves and changes in one row of the panel.
    struct Side {
        explicit Side(Picture& panel);

        Label labActive;
        Label labStandby;
        Label labSpeed;
        Shape shpSwitch;
        Line lineSelector;
        Line lineInnRot;  // starts in the centre of the knob
        Line lineOutRot;
    };

    explicit RadioPanelPicture(Picture& panel);

    Side& At(int side) { return sides_[static_cast<size_t>(side - 1)]; }
    const Side& At(int side) const { return sides_[static_cast<size_t>(side - 1)]; }

    // Bits of no position are shown as COM1.
    void ShowSelector(int side, int32_t bits);
    void ShowButton(int side, bool pressed);
    void ShowSpeed(int side, int16_t speed);
    // `rotary`: 0 upper inner, 1 upper outer, 2 lower inner, 3 lower outer.
    void TurnRotary(int32_t rotary, int16_t degrees);

  private:
    static void Place(Side& side, int32_t down);

    const PanelBody body_;
    std::array<Side, 2> sides_;
    std::array<int16_t, 4> rotAngles_{};
};
