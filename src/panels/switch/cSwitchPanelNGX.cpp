// What the light switches and the gear lever do in the NGX mode: the add-on's own are clicked, the
// lights' from the position in which they stand.
#include <algorithm>
#include <optional>

#include "panels/switch/SwitchNumber.h"
#include "panels/switch/cSwitchPanelLogic.h"
#include "simlink/channel/NGXEventTable.h"

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
    int32_t state;  // 1 going on, 0 going off
    int32_t from;
    int32_t click;
    bool twice = false;
};
constexpr Move kMoves[] = {
    {kPanel, 1, 0, kNGXLeftClick, true},   {kPanel, 1, 1, kNGXLeftClick},
    {kPanel, 0, 2, kNGXRightClick},        {kPanel, 0, 0, kNGXLeftClick},
    {kBeacon, 1, 0, kNGXLeftClick},        {kBeacon, 0, 1, kNGXLeftClick},
    {kNav, 1, 1, kNGXLeftClick},           {kNav, 0, 0, kNGXRightClick},
    {kStrobe, 1, 0, kNGXRightClick, true}, {kStrobe, 1, 1, kNGXRightClick},
    {kStrobe, 0, 2, kNGXLeftClick},        {kTaxi, 1, 0, kNGXLeftClick},
    {kTaxi, 0, 1, kNGXLeftClick},          {kLanding, 1, 0, kNGXLeftClick},
    {kLanding, 0, 0, kNGXRightClick},
};

}  // namespace

// A switch that is thrown back doesn't get its second click any more.
bool cSwitchPanelLogic::SwitchLightNGX(int32_t number, bool on) {
    const auto* const addOn = std::ranges::find(kAddOnSwitches, number, &AddOnSwitch::number);
    if (addOn == std::end(kAddOnSwitches)) return true;
    const auto moves = [&](const Move& move, bool way) {
        return move.number == number && move.state == (way ? 1 : 0);
    };
    const auto goesTwice = [&](const Move& move) { return moves(move, !on) && move.twice; };
    if (std::ranges::any_of(kMoves, goesTwice)) output_.DropSecond(addOn->control);
    const int32_t offset = addOn->positionOffset;
    const auto position = offset == 0 ? std::optional(0.0) : session_.ReadOffset(offset, 1);
    if (!position) return false;
    for (const Move& move : kMoves) {
        if (!moves(move, on) || move.from != *position) continue;
        if (move.twice) {
            output_.SendControlTwice(addOn->control, move.click);
        } else {
            output_.SendControl(addOn->control, move.click);
        }
    }
    return true;
}

// Down takes two clicks, up one.
void cSwitchPanelLogic::MoveGearNGX(bool down) {
    if (down) {
        output_.SendControlTwice(kGearLever, kNGXLeftClick);
    } else {
        output_.SendControl(kGearLever, kNGXRightClick);
    }
}
