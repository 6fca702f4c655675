#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "panels/bip/BIPPanelReport.h"
#include "panels/bip/TileCatalogue.h"
#include "simlink/actions/Numbered.h"
#include "simlink/actions/cActionsHolder.h"

// What one tile is set up to show.
struct TileRecord {
    int32_t Function = 0;   // row of TileFunctions
    int32_t Threshold = 0;  // percent, 0 to 100
    ::Color Color = LampColor::kOff;
};

// What one BIP Panel's tiles show in the current profile. Tiles are numbered 0 to 23; other numbers
// read as a tile without function, and setting them does nothing.
class cBIPPanelActionHolder final : public cActionsHolder {
  public:
    explicit cBIPPanelActionHolder(ProfileStore& profiles) : cActionsHolder(profiles, "BIPPanel") {}

    int32_t GetTileFunction(int16_t Tile) const { return tiles_.Get(Tile).Function; }
    // With the function's standard colour and threshold. Numbers that are no row are ignored.
    void SetTileFunction(int16_t Tile, int32_t Function);
    Color GetColor(int16_t Tile) const { return tiles_.Get(Tile).Color; }
    void SetColor(int16_t Tile, Color color);
    int32_t GetThreshold(int16_t Tile) const { return tiles_.Get(Tile).Threshold; }
    // Held to 0 to 100.
    void SetThreshold(int16_t Tile, int32_t threshold);

    // What the catalogue says of the tile's function.
    bool hasThresholdSel(int16_t Tile) const { return FunctionOf(Tile).HasThreshold; }
    bool hasColorSel(int16_t Tile) const { return FunctionOf(Tile).HasColor; }
    std::string_view GetName(int16_t Tile) const { return FunctionOf(Tile).Name; }
    std::string_view GetDescription(int16_t Tile) const { return FunctionOf(Tile).Description; }
    int32_t GetTilesGroup(int16_t Tile) const { return FunctionOf(Tile).Group; }
    const TileFunction& FunctionOf(int16_t Tile) const {
        return TileFunctions[static_cast<size_t>(GetTileFunction(Tile))];
    }

    void ClearTile(int16_t Tile) { tiles_.Set(Tile, {}); }
    void ClearAllTiles();

  private:
    void SetDefaults() override { ClearAllTiles(); }
    void Take(const IniEntries& entries) override;
    bool Write(IniSection& keys) override;
    static TileRecord Parsed(std::string_view text);
    std::string TileText(int16_t tile) const;

    Numbered<TileRecord, 0, kBIPTiles - 1> tiles_;
};
