#pragma once

#include <array>
#include <cstdint>

#include "base/Event.h"
#include "panels/bip/cBIPPanelActionHolder.h"
#include "simlink/devices/LampColor.h"

// What the user does to the tiles of a BIP Panel, of which one is selected at a time. Changes the
// holder that it is given, and tells what is to be shown anew.
class TileEditor {
  public:
    // The colours that a tile may get, by the number of the option.
    static constexpr std::array<Color, 3> kColors = {LampColor::kRed, LampColor::kGreen,
                                                     LampColor::kYellow};

    explicit TileEditor(cBIPPanelActionHolder& tiles) : tiles_(tiles) {}

    Event<int16_t> TileChanged;  // its function or its colour
    Event<> SelectedChanged;     // another tile is selected, or this one has another function

    int16_t Selected() const { return selected_; }

    // Tiles are 0 to 23; others are ignored.
    void SelectTile(int16_t tile);
    // Gives the selected tile a row of the catalogue, with the row's standard colour and threshold.
    // Nothing changes when it has that function, or when the row has no content.
    void ChooseFunction(int32_t function);
    // Number of one of kColors; others, and a tile without a choice of colour, are ignored.
    void ChooseColor(size_t color);
    // Percent, held to 0 to 100; of a tile whose function has none it is ignored.
    void ChooseThreshold(int32_t percent);
    void ClearTile();
    void ClearAllTiles();

  private:
    cBIPPanelActionHolder& tiles_;
    int16_t selected_ = 0;
};
