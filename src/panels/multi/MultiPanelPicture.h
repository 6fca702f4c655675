#pragma once

#include <array>
#include <cstdint>
#include <memory>

#include "panels/multi/MultiPanelReport.h"
#include "toolkit/Picture.h"
#include "ui/PanelDrawing.h"

// The Multi Panel on the screen: what moves and changes in front of the panel's body. Co-ordinates
// are twips within the picture.
class MultiPanelPicture {
  public:
    explicit MultiPanelPicture(Picture& panel);

    // Pointer and mode labels; bits of no position leave the labels as they were.
    void ShowSelector(int32_t bits);
    void ShowButton(int32_t mask, bool pressed);
    // Lit buttons are yellow and the others white, but for a pressed one, which stays red.
    void ShowLights(uint8_t lights);
    void ShowSpeed(Label& label, int16_t speed);
    void ShowFlaps(int direction);  // 1 up, 0 middle, -1 down
    void ShowAutoThrottle(bool armed);
    void KnobClockwise() { TurnRotary(15); }
    void KnobCounterClockwise() { TurnRotary(-15); }
    // The bar on the wheel goes one step round.
    void TrimUp();
    void TrimDown();

  private:
    const PanelBody body_;

  public:
    std::array<std::unique_ptr<Shape>, kMultiPanelButtons.size()>
        shpButton;  // as the buttons' table
    Label labUpperValue;
    Label labLowerValue;
    Label labUpperMode;
    Label labLowerMode;
    Label labSpeed;
    Label labSpeed2;
    Line SelectorSign;
    Line RotarySign;
    Line lineTrim;
    Shape shpFlapsLever;
    Shape shpATLever;

  private:
    void PlaceButtons(Picture& panel);
    void PlaceLabels();
    void PlacePointersAndLevers();
    void TurnRotary(int16_t degrees);
    void MoveTrimBar(int32_t y);

    std::array<std::unique_ptr<Label>, kMultiPanelButtons.size()> buttonCaptions_;
    int16_t rotAngle_ = 0;
    uint8_t lightBits_ = 0;
};
