#include "panels/bip/TileEditor.h"

void TileEditor::SelectTile(int16_t tile) {
    if (tile < 0 || tile >= kBIPTiles) return;
    selected_ = tile;
    SelectedChanged.Raise();
}

void TileEditor::ChooseFunction(int32_t function) {
    if (function == tiles_.GetTileFunction(selected_) || !HasContent(function)) return;
    tiles_.SetTileFunction(selected_, function);
    TileChanged.Raise(selected_);
    SelectedChanged.Raise();
}

void TileEditor::ChooseColor(size_t color) {
    if (color >= kColors.size() || !tiles_.hasColorSel(selected_)) return;
    tiles_.SetColor(selected_, kColors[color]);
    TileChanged.Raise(selected_);
}

void TileEditor::ChooseThreshold(int32_t percent) {
    if (tiles_.hasThresholdSel(selected_)) tiles_.SetThreshold(selected_, percent);
}

void TileEditor::ClearTile() {
    tiles_.ClearTile(selected_);
    TileChanged.Raise(selected_);
    SelectedChanged.Raise();
}

void TileEditor::ClearAllTiles() {
    tiles_.ClearAllTiles();
    for (int16_t tile = 0; tile < kBIPTiles; ++tile) TileChanged.Raise(tile);
    SelectedChanged.Raise();
}
