// Built-in behaviour of the light switches and the gear lever in the NGX mode: the add-on's own
// switches are clicked, each from the position in which it stands.
#include <algorithm>

#include "panels/switch/SwitchNumber.h"
#include "panels/switch/cSwitchPanelLogic.h"

namespace {

constexpr int32_t kLeftClick = 0x20000000;
constexpr auto kRightClick = static_cast<int32_t>(0x80000000);
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
    {kPanel, true, 0, kLeftClick, true},   {kPanel, true, 1, kLeftClick},
    {kPanel, false, 2, kRightClick},       {kPanel, false, 0, kLeftClick},
    {kBeacon, true, 0, kLeftClick},        {kBeacon, false, 1, kLeftClick},
    {kNav, true, 1, kLeftClick},           {kNav, false, 0, kRightClick},
    {kStrobe, true, 0, kRightClick, true}, {kStrobe, true, 1, kRightClick},
    {kStrobe, false, 2, kLeftClick},       {kTaxi, true, 0, kLeftClick},
    {kTaxi, false, 1, kLeftClick},         {kLanding, true, 0, kLeftClick},
    {kLanding, false, 0, kRightClick},
};

}  // namespace

void cSwitchPanelLogic::SwitchLightNGX(int32_t number, bool on) {
    const auto* const addOn = std::ranges::find(kAddOnSwitches, number, &AddOnSwitch::number);
    if (addOn == std::end(kAddOnSwitches)) return;
    cOFFSET position(session_.Fsuipc, addOn->positionOffset, 1);
    if (addOn->positionOffset != 0 && !position.DirectRead(true)) return;
    for (const Move& move : kMoves) {
        if (move.number != number || move.on != on || move.from != position.IntegerData()) continue;
        if (move.twice) {
            session_.Output.SendControlTwice(addOn->control, move.click);
        } else {
            session_.Output.SendControl(addOn->control, move.click);
        }
    }
}

// The lever has a position between the two, on the way down one click more.
void cSwitchPanelLogic::MoveGearNGX(bool down) {
    if (down) {
        session_.Output.SendControlTwice(kGearLever, kLeftClick);
    } else {
        session_.Output.SendControl(kGearLever, kRightClick);
    }
}
