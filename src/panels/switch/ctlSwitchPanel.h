#pragma once

#include <array>
#include <cstdint>
#include <optional>

#include "panels/switch/SwitchPanelPicture.h"
#include "panels/switch/SwitchPanelReport.h"
#include "simlink/devices/LampColor.h"
#include "simlink/devices/cPanelDevice.h"

// Device object of one Switch Panel: turns its reports into events, writes its gear lights, and
// mirrors all of it in the picture. Switches and positions are told by their bits of the state
// word. The first report tells everything as if it had just changed.
class ctlSwitchPanel final : public cPanelDevice {
  public:
    ctlSwitchPanel(Container& parent, const DeviceServices& services);
    ~ctlSwitchPanel() override;

    Event<int32_t, bool> SwitchChange;       // a toggle switch, and whether it is on
    Event<int32_t, int32_t> SelectorChange;  // new and old position; 0 between two of them
    Event<> GearUp;                          // the lever has reached its position
    Event<> GearDown;

    // Gives the gear lights a LampColor each; any other number is off. A light that isn't given
    // goes dark on the panel and keeps its colour in the picture. Sends the report in any case.
    void ChangeLights(std::optional<Color> GearN, std::optional<Color> GearL,
                      std::optional<Color> GearR);

    void TurnOff() override { ChangeLights(LampColor::kOff, LampColor::kOff, LampColor::kOff); }
    void Splash() override;

    SwitchPanelPicture OnScreen{*this};

  private:
    void HandleReport(const Change& change, uint32_t clock) override;
    void CheckSwitch(size_t toggle, const Change& change);
    void CheckGear(bool down, const Change& change);
};
