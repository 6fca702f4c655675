#pragma once

#include <cstdint>

#include "config/ProfileStore.h"
#include "panels/switch/SwitchNumber.h"
#include "simlink/actions/ActionRecord.h"
#include "simlink/actions/BindingTable.h"
#include "simlink/actions/Numbered.h"

// What one Switch Panel's switches do in the current profile. Switches and positions have the
// numbers of SwitchNumber. State is 1 for going on, or reaching the position, and 0 for going off,
// or leaving it. Numbers that the panel doesn't have read as nothing, and setting them does
// nothing.
class cSwitchPanelActionsHolder {
  public:
    explicit cSwitchPanelActionsHolder(ProfileStore& profiles);

    int16_t Index = 0;            // number of the panel, from 1; names the section
    bool RetractableGear = true;  // of the aircraft, for simulators that can't tell
    // Whether these act on the selected engine only.
    bool SingleStarterSelector = false;
    bool SingleFuelPump = false;
    bool SingleAltSwitch = false;
    bool SingleCowlFlaps = false;
    bool SingleDeIce = false;

    const ActionRecord& GetSwitchActions(int32_t Switch, int32_t State) const;
    void SetSwitchActions(int32_t Switch, int32_t State, const ActionRecord& Record);

    // Of the records only FSEvent.
    void LoadDefaults();
    // Defaults, then what the section of the current profile says; what makes no sense there is
    // passed over.
    void LoadSetup();
    // Writes what differs from the defaults: all or, where the file can't be written, nothing.
    void SaveSetup();

  private:
    BindingTable Keys();

    ProfileStore& profiles_;
    // By state.
    Numbered<Numbered<ActionRecord, SwitchNumber::kSelectorOff, SwitchNumber::kGearDown>, 0, 1>
        actions_;
};
