// What the light switches and the gear lever do in the NGX mode: the add-on's own are clicked, the
// lights' from the position in which they stand.
#include <algorithm>

#include "panels/switch/SwitchNumber.h"
#include "panels/switch/cSwitchPanelLogic.h"
#include "simlink/NGXEventTable.h"

namespace {

constexpr int32_t kGearLever = 70087;

using namespace SwitchNumber;

// NAV and STROBE are one switch: 0 NAV, 1 off, 2 STROBE.
struct AddOnSwitch {
    int32_t number;
    int32_t positionOffset;  // 0 if the position doesn't matter
    int32_t control;
};
constexpr AddOnSwitch kAddOnSwitches[] = {
    {kPanel, 0x642F, 69890},  {kBeacon, 0x6501, 69756}, {kNav, 0x6500, 69755},
    {kStrobe, 0x6500, 69755}, {kTaxi, 0x64FA, 69749},   {kLanding, 0, 69742},
};

// Positions that aren't named leave the switch as it is.
struct Move {
    int32_t number;
    bool on;
    int32_t from;
    int32_t click;
    bool twice = false;
};
constexpr Move kMoves[] = {
    {kPanel, true, 0, kNGXLeftClick, true},   {kPanel, true, 1, kNGXLeftClick},
    {kPanel, false, 2, kNGXRightClick},       {kPanel, false, 0, kNGXLeftClick},
    {kBeacon, true, 0, kNGXLeftClick},        {kBeacon, false, 1, kNGXLeftClick},
    {kNav, true, 1, kNGXLeftClick},           {kNav, false, 0, kNGXRightClick},
    {kStrobe, true, 0, kNGXRightClick, true}, {kStrobe, true, 1, kNGXRightClick},
    {kStrobe, false, 2, kNGXLeftClick},       {kTaxi, true, 0, kNGXLeftClick},
    {kTaxi, false, 1, kNGXLeftClick},         {kLanding, true, 0, kNGXLeftClick},
    {kLanding, false, 0, kNGXRightClick},
};

}  // namespace

void cSwitchPanelLogic::SwitchLightNGX(int32_t number, bool on) {
    const auto* const addOn = std::ranges::find(kAddOnSwitches, number, &AddOnSwitch::number);
    if (addOn == std::end(kAddOnSwitches)) return;
    cOFFSET position(session_.Fsuipc, addOn->positionOffset, 1);
    if (addOn->positionOffset != 0) {
        if (!session_.Fsuipc.Answers() || !position.DirectRead(true)) return;
    }
    for (const Move& move : kMoves) {
        if (move.number != number || move.on != on || move.from != position.IntegerData()) continue;
        if (move.twice) {
            session_.Output.SendControlTwice(addOn->control, move.click);
        } else {
            session_.Output.SendControl(addOn->control, move.click);
        }
    }
}

// Down takes two clicks, up one.
void cSwitchPanelLogic::MoveGearNGX(bool down) {
    if (down) {
        session_.Output.SendControlTwice(kGearLever, kNGXLeftClick);
    } else {
        session_.Output.SendControl(kGearLever, kNGXRightClick);
    }
}
