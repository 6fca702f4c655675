// A hand-made value of a tile, and what a user makes of it: it reads back the same, and never is
// anything that can't be selected.
#include <algorithm>
#include <cstdint>
#include <string>

#include "bench/fuzz/Require.h"
#include "panels/bip/TileEditor.h"
#include "platform/virtual/VirtualPlatform.h"

namespace {

void RequireSelectable(const cBIPPanelActionHolder& tiles, int16_t tile) {
    const int32_t function = tiles.GetTileFunction(tile);
    Require(function == 0 || HasContent(function));
    Require(tiles.hasColorSel(tile) == (tiles.GetColor(tile) != LampColor::kOff));
    Require(tiles.GetThreshold(tile) >= 0 && tiles.GetThreshold(tile) <= 100);
    Require(tiles.hasThresholdSel(tile) || tiles.GetThreshold(tile) == 0);
}

void RequireSame(const cBIPPanelActionHolder& tiles, const cBIPPanelActionHolder& again) {
    for (int16_t tile = 0; tile < kBIPTiles; ++tile) {
        Require(again.GetTileFunction(tile) == tiles.GetTileFunction(tile));
        Require(again.GetColor(tile) == tiles.GetColor(tile));
        Require(again.GetThreshold(tile) == tiles.GetThreshold(tile));
    }
}

void Edit(cBIPPanelActionHolder& tiles, int16_t tile, uint8_t what, uint8_t value) {
    TileEditor editor(tiles);
    editor.SelectTile(tile);
    if (what % 4 == 0) editor.ChooseFunction(value - 10);
    if (what % 4 == 1) editor.ChooseColor(value % 5);
    if (what % 4 == 2) editor.ChooseThreshold(value - 20);
    if (what == 3) editor.ClearTile();
}

}  // namespace

// The tile and two acts of the user, then the text.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    if (size < 5) return 0;
    const auto tile = static_cast<int16_t>(data[0] % kBIPTiles);
    std::string text(data + 5, data + size);
    std::erase_if(text, [](char c) { return c == '\n' || c == '\r' || c == '\0'; });
    VirtualPlatform machine;
    machine.files.Put("C:\\Orvo\\Default.ini",
                      "[BIPPanel1]\nT" + std::to_string(tile) + '=' + text);
    ProfileStore profiles(machine.ini, machine.files, machine.clock, "C:\\Orvo");
    cBIPPanelActionHolder tiles(profiles), again(profiles);
    tiles.Index = again.Index = 1;
    tiles.LoadSetup();
    RequireSelectable(tiles, tile);
    for (size_t i = 1; i < 5; i += 2) {
        Edit(tiles, tile, data[i], data[i + 1]);
        RequireSelectable(tiles, tile);
        Require(bool(tiles.SaveSetup()));
        again.LoadSetup();
        RequireSame(tiles, again);
    }
    return 0;
}
