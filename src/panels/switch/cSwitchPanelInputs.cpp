// What the panel's events do: bound actions, and the built-in behaviour of the switches.
#include "base/Number.h"
#include "panels/switch/SwitchNumber.h"
#include "panels/switch/cSwitchPanelLogic.h"
#include "simlink/devices/GearLeg.h"

namespace {

using namespace SwitchNumber;

// A switch that writes one value when it goes on and another when it goes off.
struct PlainSwitch {
    int32_t number;
    int32_t dataType;
    std::array<int32_t, 4> offsets;  // one, or one for each engine
    double on;
    double off;
    // The option to act on the selected engine alone, if it has one.
    bool cSwitchPanelActionsHolder::*single;
};
constexpr PlainSwitch kPlainSwitches[] = {
    {kBat, 1, {0x3102}, 1, 0, nullptr},
    {kAlt, 5, {0x3B78, 0x3AB8, 0x39F8, 0x3938}, 1, 0, &cSwitchPanelActionsHolder::SingleAltSwitch},
    {kAvionics, 1, {0x3103}, 1, 0, nullptr},
    {kDeIce, 2, {0x08B2, 0x094A, 0x09E2, 0x0A7A}, 1, 0, &cSwitchPanelActionsHolder::SingleDeIce},
    {kPitot, 1, {0x029C}, 1, 0, nullptr},
    // Closes the flaps when it goes on.
    {kCowl, 8, {0x37F0, 0x3730, 0x3670, 0x35B0}, 0, 1, &cSwitchPanelActionsHolder::SingleCowlFlaps},
};

constexpr uint8_t kAllPumps = 15;

constexpr std::array<int32_t, 4> kStarterOffsets = {0x0892, 0x092A, 0x09C2, 0x0A5A};

constexpr int32_t kLightsWord = 0x0D0C;
constexpr uint16_t kLightBits[] = {0x20, 0x02, 0x01, 0x10, 0x08, 0x04};  // from kPanel on

constexpr int32_t kGearHandle = 0x0BE8;

}  // namespace

void cSwitchPanelLogic::SwitchChange(int32_t Switch, bool State) {
    const ActionRecord& record = SPActions->GetSwitchActions(Switch, State ? 1 : 0);
    if (record.FSEvent == ActionKind::Offset) {
        SwitchBuiltIn(Switch, State);
    } else {
        output_.RunAction(record);
    }
}

void cSwitchPanelLogic::SwitchBuiltIn(int32_t number, bool on) {
    if (number == kFuelPump) SwitchFuelPumps(on);
    if (number >= kPanel && number <= kLanding) {
        session_.Acts.Do([this, number, on] {
            return session_.SpecialMode == kNGXMode ? SwitchLightNGX(number, on)
                                                    : SwitchLight(number, on);
        });
    }
    for (const PlainSwitch& each : kPlainSwitches) {
        if (each.number != number) continue;
        const bool single = each.single && (*SPActions).*each.single;
        WriteEngines(each.offsets, each.dataType, on ? each.on : each.off, single);
    }
}

void cSwitchPanelLogic::WriteEngines(const EngineOffsets& offsets, int32_t dataType, double value,
                                     bool single) {
    if (single) {
        session_.WriteOffset(offsets[session_.EngineSelected - 1U], dataType, value, false);
        return;
    }
    for (const int32_t offset : offsets) {
        if (offset != 0) session_.WriteOffset(offset, dataType, value, false);
    }
}

void cSwitchPanelLogic::SwitchFuelPumps(bool on) {
    if (SPActions->SingleFuelPump) {
        session_.Acts.Do(
            [this, engine = session_.EngineSelected, on] { return SwitchFuelPump(engine, on); });
        return;
    }
    session_.WriteOffset(kSwitchOffsets[kFuelPumps].offset, 1, on ? kAllPumps : 0, false);
}

bool cSwitchPanelLogic::SwitchFuelPump(uint8_t engine, bool on) {
    const OffsetRow& row = kSwitchOffsets[kFuelPumps];
    const auto pumps = values_.AreRead() ? std::optional(offsets_[kFuelPumps].Data())
                                         : session_.ReadOffset(row.offset, row.dataType);
    if (!pumps) return false;
    const int32_t bit = 1 << (engine - 1);
    const auto now = RoundTo<int32_t>(*pumps);
    session_.WriteOffset(row.offset, row.dataType, on ? now | bit : now & ~bit, false);
    return true;
}

// The word as it is at this moment: other switches of the same report have changed it just now.
bool cSwitchPanelLogic::SwitchLight(int32_t number, bool on) {
    const auto word = session_.ReadOffset(kLightsWord, 2);
    if (!word) return false;
    const int32_t bit = kLightBits[number - kPanel];
    const auto lights = RoundTo<int32_t>(*word);
    if (((lights & bit) != 0) != on) {
        session_.WriteOffset(kLightsWord, 2, on ? lights | bit : lights & ~bit, false);
    }
    return true;
}

void cSwitchPanelLogic::SelectorChange(int32_t NewPosition, int32_t OldPosition) {
    output_.RunAction(SPActions->GetSwitchActions(OldPosition, 0));
    const ActionRecord& record = SPActions->GetSwitchActions(NewPosition, 1);
    if (record.FSEvent == ActionKind::Offset) {
        WriteEngines(kStarterOffsets, 2, NewPosition - 1, SPActions->SingleStarterSelector);
    } else {
        output_.RunAction(record);
    }
}

// The virtual button of a VButton record stands for the lever's position, and the one of the other
// position goes up. In the NGX the add-on's lever moves, whatever the bindings say.
void cSwitchPanelLogic::MoveGear(bool down) {
    if (session_.SpecialMode == kNGXMode) {
        gearLever_.LetGo();
        MoveGearNGX(down);
        return;
    }
    const ActionRecord reached = SPActions->GetSwitchActions(down ? kGearDown : kGearUp, 1);
    gearLever_.MoveTo(reached, SPActions->GetSwitchActions(down ? kGearUp : kGearDown, 1));
    if (reached.FSEvent == ActionKind::Offset) {
        session_.WriteOffset(kGearHandle, 4, down ? kGearDownPosition : 0, false);
    } else if (reached.FSEvent == ActionKind::VKey) {
        output_.SendAction(reached);
    }
}
