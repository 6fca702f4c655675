#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

#include "panels/switch/SwitchPanelOffsets.h"
#include "panels/switch/cSwitchPanelActionsHolder.h"
#include "panels/switch/ctlSwitchPanel.h"
#include "simlink/actions/ActionRecord.h"
#include "simlink/channel/cOffsetTable.h"
#include "simlink/channel/cSession.h"
#include "simlink/devices/cPanelLogic.h"

// Behaviour of one Switch Panel: shows the gear on the panel's lights, and turns its events into
// what the bindings say. StartUp comes before all else. Switches are numbered as in the holder;
// other numbers do nothing.
class cSwitchPanelLogic final : public cPanelLogic {
  public:
    cSwitchPanelLogic(const LogicServices& services, ctlSwitchPanel& control, int16_t index);

    void StartUp() override;
    void RefreshData() override;
    void SetupChanged() override;
    void LoadSetup() override { SPActions->LoadSetup(); }

    void SwitchChange(int32_t Switch, bool State);
    // 0 is between two positions.
    void SelectorChange(int32_t NewPosition, int32_t OldPosition);
    void GearUp() { MoveGear(false); }
    void GearDown() { MoveGear(true); }

    const int16_t Index;
    std::unique_ptr<cSwitchPanelActionsHolder> SPActions;

  private:
    // Four offsets that mean the same, one for each engine.
    using EngineOffsets = std::array<int32_t, 4>;

    void RegisterOffsets();
    bool GearShown() const;

    void SwitchBuiltIn(int32_t number, bool on);
    void WriteEngines(const EngineOffsets& offsets, int32_t dataType, double value, bool single);
    void SwitchFuelPumps(bool on);
    void SwitchLight(int32_t number, bool on);
    void SwitchLightNGX(int32_t number, bool on);
    void MoveGear(bool down);
    void HoldGearButton(const ActionRecord& reached, const ActionRecord& left);
    void MoveGearNGX(bool down);

    cSession& session_;
    EventOutput& output_;
    ProfileStore& profiles_;
    ctlSwitchPanel& control_;
    std::vector<NamedOffset> offsets_;  // as kSwitchOffsets
    // Nose, left and right, as the lights were told last.
    std::array<Color, 3> remembered_{};
    std::optional<ActionRecord> held_{};  // the virtual button that the gear lever holds down
};
