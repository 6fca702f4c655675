#pragma once

#include <array>
#include <cstdint>
#include <memory>

#include "panels/switch/SwitchPanelOffsets.h"
#include "panels/switch/cSwitchPanelActionsHolder.h"
#include "panels/switch/ctlSwitchPanel.h"
#include "simlink/actions/HeldButton.h"
#include "simlink/channel/TickValues.h"
#include "simlink/devices/cPanelLogic.h"

// Behaviour of one Switch Panel: shows the gear on the panel's lights, and turns its events into
// what the bindings say. StartUp comes before all else. Switches are numbered as in the holder;
// other numbers do nothing.
class cSwitchPanelLogic final : public cPanelLogic {
  public:
    cSwitchPanelLogic(const LogicServices& services, ctlSwitchPanel& control, int16_t index);

    void StartUp() override;

    void SwitchChange(int32_t Switch, bool State);
    // 0 is between two positions.
    void SelectorChange(int32_t NewPosition, int32_t OldPosition);
    void GearUp() { MoveGear(false); }
    void GearDown() { MoveGear(true); }
    // The lever has moved while no session was up.
    void LetGoOfGear() { gearLever_.LetGo(); }

    const int16_t Index;
    std::unique_ptr<cSwitchPanelActionsHolder> SPActions;

  private:
    void Refresh() override;
    void AddPlaces(PlaceSet& places) const override { offsets_.AddPlaces(places); }
    void ApplySetup() override;
    void ReadSetup() override { SPActions->LoadSetup(); }

    // Four offsets that mean the same, one for each engine.
    using EngineOffsets = std::array<int32_t, 4>;

    bool GearShown() const;

    void SwitchBuiltIn(int32_t number, bool on);
    void WriteEngines(const EngineOffsets& offsets, int32_t dataType, double value, bool single);
    void SwitchFuelPumps(bool on);
    bool SwitchFuelPump(uint8_t engine, bool on);
    bool SwitchLight(int32_t number, bool on);
    bool SwitchLightNGX(int32_t number, bool on);
    void MoveGear(bool down);
    void MoveGearNGX(bool down);

    EventOutput& output_;
    ProfileStore& profiles_;
    ctlSwitchPanel& control_;
    OffsetRows offsets_;
    TickValues values_;
    // Nose, left and right, as the lights were told last.
    std::array<Color, 3> remembered_{};
    HeldButton gearLever_;
};
