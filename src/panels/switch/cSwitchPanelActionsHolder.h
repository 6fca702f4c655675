#pragma once

#include <cstdint>

#include "panels/switch/SwitchNumber.h"
#include "simlink/actions/ActionRecord.h"
#include "simlink/actions/Numbered.h"
#include "simlink/actions/cActionsHolder.h"

// What one Switch Panel's switches do in the current profile. Switches and positions have the
// numbers of SwitchNumber. State is 1 for going on, or reaching the position, and 0 for going off,
// or leaving it. Numbers that the panel doesn't have read as nothing, and setting them does
// nothing.
class cSwitchPanelActionsHolder final : public cKeyedActionsHolder {
  public:
    explicit cSwitchPanelActionsHolder(ProfileStore& profiles);

    bool RetractableGear = true;  // of the aircraft, for simulators that can't tell
    // Whether these act on the selected engine only.
    bool SingleStarterSelector = false;
    bool SingleFuelPump = false;
    bool SingleAltSwitch = false;
    bool SingleCowlFlaps = false;
    bool SingleDeIce = false;

    const ActionRecord& GetSwitchActions(int32_t Switch, int32_t State) const;
    void SetSwitchActions(int32_t Switch, int32_t State, const ActionRecord& Record);

  private:
    BindingTable Keys() override;

    // By state.
    Numbered<Numbered<ActionRecord, SwitchNumber::kSelectorOff, SwitchNumber::kGearDown>, 0, 1>
        actions_;
};
