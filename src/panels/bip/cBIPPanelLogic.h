#pragma once

#include <cstdint>
#include <memory>
#include <optional>

#include "panels/bip/TileCatalogue.h"
#include "panels/bip/cBIPPanelActionHolder.h"
#include "panels/bip/ctlBIPPanel.h"
#include "simlink/channel/MasterPower.h"
#include "simlink/channel/cOffsetTable.h"
#include "simlink/channel/cSession.h"
#include "simlink/devices/GearLeg.h"
#include "simlink/devices/cPanelLogic.h"
#include "ui/WindowState.h"

// Behaviour of one BIP Panel: judges the functions of its tiles at every tick, and gives the tiles
// their colours. StartUp comes before all else. What a tile shows is remembered by the panel's
// control alone.
class cBIPPanelLogic final : public cPanelLogic {
  public:
    // `windows` says whether the setup window has the tiles.
    cBIPPanelLogic(const LogicServices& services, ctlBIPPanel& control, int16_t index,
                   const WindowState& windows);

    void StartUp() override;

    const int16_t Index;
    std::unique_ptr<cBIPPanelActionHolder> BPActions;

  private:
    void Refresh() override;
    void AddPlaces(PlaceSet& places) const override {
        offsets_.AddPlaces(places);
        power_.AddPlaces(places);
    }
    void ApplySetup() override;
    void ReadSetup() override { BPActions->LoadSetup(); }

    const TileRule& RuleOf(int16_t tile) const;
    double Value(TileOffset offset) const;

    void RegisterTileOffsets();
    void Register(TileOffset offset);
    void ReadGear();
    // Whether the tile is lit; nothing if it stays as it is.
    std::optional<bool> Judge(const TileRule& rule, int32_t threshold) const;
    void ShowTile(int16_t tile);
    void SetTile(int16_t tile, Color color) { control_.TurnTile(tile, color); }

    bool AllLegs(GearLeg leg) const;
    bool AnyLeg(GearLeg leg) const;
    // Tiles that choose their own colours.
    void ShowCustom(int16_t tile, const TileRule& rule);
    void ShowCombinedGear(int16_t tile);
    void ShowCombinedMarkers(int16_t tile);
    void ShowAutopilotReset(int16_t tile, const TileRule& rule);

    ProfileStore& profiles_;
    ctlBIPPanel& control_;
    const WindowState& windows_;
    OffsetRows offsets_;
    MasterPower power_;

    bool gearTilesInUse_ = false;
    // As this tick has read it.
    GearLeg noseGear_ = GearLeg::Up;
    GearLeg rightGear_ = GearLeg::Up;
    GearLeg leftGear_ = GearLeg::Up;
};
