#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <string_view>

#include "simlink/devices/LampColor.h"
#include "toolkit/Picture.h"
#include "ui/PanelDrawing.h"

// The BIP Panel on the screen. The colour of a tile's face is at the same time what the program
// remembers of it.
class BIPPanelPicture {
  private:
    const PanelBody body_;

  public:
    static constexpr Color kTileOff = 0x8000000F;  // as the faces of the system's buttons

    // The tiles stand `down` twips lower than on the panel's page.
    explicit BIPPanelPicture(Picture& panel, int32_t down = 0);

    // The face of a tile shows a colour; kOff is that of an unlit one.
    void SetFace(size_t tile, Color color) { shpTile[tile].FillColor = FaceOf(color); }
    bool Shows(size_t tile, Color color) const { return shpTile[tile].FillColor == FaceOf(color); }

    // A caption of up to three lines, with a point between them; one with more changes nothing.
    void SetCaption(size_t tile, std::string_view description);

    std::deque<Shape> shpTile;
    // The lines of the captions.
    std::deque<Label> lblTileR1;
    std::deque<Label> lblTileR2;
    std::deque<Label> lblTileR3;

  private:
    static Color FaceOf(Color color) { return color == LampColor::kOff ? kTileOff : color; }
    int32_t RowTop(size_t tile) const;

    const int32_t down_;
};
