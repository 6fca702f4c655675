#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>

#include "panels/switch/SwitchPanelReport.h"
#include "toolkit/Picture.h"
#include "ui/PanelDrawing.h"

// The Switch Panel on the screen. Co-ordinates are twips within the picture.
class SwitchPanelPicture {
  public:
    explicit SwitchPanelPicture(Picture& panel);

    // Bits of no position, and those of L, are shown straight up.
    void ShowSelector(int32_t bits);
    // `toggle` is the place in kSwitchToggleBits.
    void ShowToggle(size_t toggle, bool on);
    void ShowGear(bool down);
    // `light` is the place in kGearLightBits. What lights nothing is white.
    void ShowLight(size_t light, Color color);

  private:
    const PanelBody body_;

  public:
    Line lineSelector;
    std::deque<Shape> shpToggles;     // BAT to LANDING
    Shape picGear;                    // the lever
    std::deque<Shape> shpGearLights;  // nose, left, right

  private:
    void PlaceToggles(Picture& panel);
    void PlaceGear(Picture& panel);

    std::deque<Shape> toggleSlots_;
    std::deque<Label> toggleCaptions_;
};
