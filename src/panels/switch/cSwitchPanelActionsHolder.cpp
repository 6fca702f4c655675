#include "panels/switch/cSwitchPanelActionsHolder.h"

#include <string>

namespace {

// By number, from 1.
constexpr const char* kSwitches[] = {"SELOFF", "SELR", "SELL",     "SELALL",   "SELSTART",
                                     "BAT",    "ALT",  "AVIONICS", "FUELPUMP", "DEICE",
                                     "PITOT",  "COWL", "PANEL",    "BEACON",   "NAV",
                                     "STROBE", "TAXI", "LANDING",  "GEARUP",   "GEARDOWN"};

struct StateKey {
    int32_t state;
    const char* ending;
};
constexpr StateKey kStateKeys[] = {{1, "On"}, {0, "Off"}};

}  // namespace

cSwitchPanelActionsHolder::cSwitchPanelActionsHolder(ProfileStore& profiles)
    : cKeyedActionsHolder(profiles, "SwitchPanel") {
    LoadDefaults();
}

BindingTable cSwitchPanelActionsHolder::Keys() {
    BindingTable keys;
    for (const StateKey& key : kStateKeys) {
        int32_t number = 0;
        for (const char* name : kSwitches) {
            keys.Add(std::string("Switch").append(name).append(key.ending),
                     actions_[key.state][++number], ActionKind::Offset);
        }
    }
    keys.Add("RetractableGear", RetractableGear, true);
    keys.Add("SingleStarterSelector", SingleStarterSelector, false);
    keys.Add("SingleFuelPump", SingleFuelPump, false);
    keys.Add("SingleAltSwitch", SingleAltSwitch, false);
    keys.Add("SingleCowlFlaps", SingleCowlFlaps, false);
    keys.Add("SingleDeIce", SingleDeIce, false);
    return keys;
}

const ActionRecord& cSwitchPanelActionsHolder::GetSwitchActions(int32_t Switch,
                                                                int32_t State) const {
    return actions_.Get(State).Get(Switch);
}

void cSwitchPanelActionsHolder::SetSwitchActions(int32_t Switch, int32_t State,
                                                 const ActionRecord& Record) {
    if (actions_.Holds(State)) actions_[State].Set(Switch, Record);
}
