#pragma once

#include <cstddef>
#include <deque>
#include <string_view>

#include "toolkit/Picture.h"
#include "ui/PanelDrawing.h"

// The BIP Panel on the screen. The colour of a tile's face is at the same time what the program
// remembers of it.
class BIPPanelPicture {
  private:
    const PanelBody body_;

  public:
    static constexpr Color kTileOff = 0x8000000F;  // as the faces of the system's buttons

    explicit BIPPanelPicture(Picture& panel);

    // A caption of up to three lines, with a point between them; one with more changes nothing.
    void SetCaption(size_t tile, std::string_view description);

    std::deque<Shape> shpTile;
    // The lines of the captions.
    std::deque<Label> lblTileR1;
    std::deque<Label> lblTileR2;
    std::deque<Label> lblTileR3;
};
