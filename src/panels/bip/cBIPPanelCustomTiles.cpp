// Tiles that choose their own colours, whatever colour they are set up with.
#include "panels/bip/cBIPPanelLogic.h"

void cBIPPanelLogic::ShowCustom(int16_t tile, const TileRule& rule) {
    switch (rule.test) {
        case TileTest::CombinedGear:
            ShowCombinedGear(tile);
            break;
        case TileTest::NoseGear:
            SetTile(tile, GearLamp(noseGear_));
            break;
        case TileTest::RightGear:
            SetTile(tile, GearLamp(rightGear_));
            break;
        case TileTest::LeftGear:
            SetTile(tile, GearLamp(leftGear_));
            break;
        case TileTest::CombinedMarkers:
            ShowCombinedMarkers(tile);
            break;
        case TileTest::AutopilotReset:
            ShowAutopilotReset(tile, rule);
            break;
        case TileTest::RedIfNotZero:
            SetTile(tile, Value(rule.value) != 0 ? LampColor::kRed : LampColor::kOff);
            break;
        default:
            break;
    }
}

// Some legs down and others up is none of its states: the tile stays as it is.
void cBIPPanelLogic::ShowCombinedGear(int16_t tile) {
    if (AllLegs(GearLeg::Up)) SetTile(tile, LampColor::kOff);
    if (AllLegs(GearLeg::Down)) SetTile(tile, LampColor::kGreen);
    if (AnyLeg(GearLeg::Moving)) SetTile(tile, LampColor::kRed);
}

// Each beacon that is heard takes the tile; the last one keeps it.
void cBIPPanelLogic::ShowCombinedMarkers(int16_t tile) {
    constexpr struct {
        TileOffset marker;
        Color color;
    } kMarkers[] = {{TileOffset::OuterMarker, LampColor::kGreen},
                    {TileOffset::MiddleMarker, LampColor::kRed},
                    {TileOffset::InnerMarker, LampColor::kYellow}};
    bool heard = false;
    for (const auto& each : kMarkers) {
        if (Value(each.marker) == 0) continue;
        SetTile(tile, each.color);
        heard = true;
    }
    if (!heard) SetTile(tile, LampColor::kOff);
}

void cBIPPanelLogic::ShowAutopilotReset(int16_t tile, const TileRule& rule) {
    const Color lit = Value(rule.other) != 0 ? LampColor::kYellow : LampColor::kRed;
    SetTile(tile, Value(rule.value) == 0 ? LampColor::kOff : lit);
}
