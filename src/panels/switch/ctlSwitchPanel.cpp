#include "panels/switch/ctlSwitchPanel.h"

#include "platform/Wait.h"

ctlSwitchPanel::ctlSwitchPanel(Container& parent, const DeviceServices& services)
    : cPanelDevice(parent, services, PanelKind::Switch) {}

ctlSwitchPanel::~ctlSwitchPanel() { End(); }

void ctlSwitchPanel::HandleReport(const Change& change, uint32_t /*clock*/) {
    if (change.first || change.Touches(kSwitchSelectorMask)) {
        OnScreen.ShowSelector(change.after & kSwitchSelectorMask);
        Tell(SelectorChange, change.after & kSwitchSelectorMask,
             change.before & kSwitchSelectorMask);
    }
    for (size_t toggle = 0; toggle < kSwitchToggleBits.size(); ++toggle) {
        CheckSwitch(toggle, change);
    }
    for (const bool down : {true, false}) CheckGear(down, change);
}

void ctlSwitchPanel::CheckSwitch(size_t toggle, const Change& change) {
    const int32_t bit = kSwitchToggleBits[toggle];
    if (!change.first && !change.Touches(bit)) return;
    const bool on = (change.after & bit) != 0;
    OnScreen.ShowToggle(toggle, on);
    Tell(SwitchChange, bit, on);
}

// A lever that leaves its position hasn't reached another one yet.
void ctlSwitchPanel::CheckGear(bool down, const Change& change) {
    const int32_t bit = down ? SwitchPanelBit::kGearDown : SwitchPanelBit::kGearUp;
    const bool reached = (change.after & bit) != 0 && (change.first || !(change.before & bit));
    if (!reached) return;
    OnScreen.ShowGear(down);
    Tell(down ? GearDown : GearUp);
}

void ctlSwitchPanel::ChangeLights(std::optional<Color> GearN, std::optional<Color> GearL,
                                  std::optional<Color> GearR) {
    std::array<uint8_t, kSwitchLightsSize> report{};
    const std::array<std::optional<Color>, kGearLightBits.size()> colors = {GearN, GearL, GearR};
    for (size_t light = 0; light < colors.size(); ++light) {
        if (!colors[light]) continue;
        const Color color = *colors[light];
        if (LampColor::HasGreen(color)) report[1] |= kGearLightBits[light].green;
        if (LampColor::HasRed(color)) report[1] |= kGearLightBits[light].red;
        OnScreen.ShowLight(light, color);
    }
    Services().hid.SetFeature(DeviceHandle(), report);
}

void ctlSwitchPanel::Splash() {
    for (const Color color : {LampColor::kGreen, LampColor::kYellow, LampColor::kRed}) {
        for (size_t light = 0; light < kGearLightBits.size(); ++light) {
            std::array<Color, kGearLightBits.size()> colors{};
            colors[light] = color;
            ChangeLights(colors[0], colors[1], colors[2]);
            Wait(Services().clock, Services().loop, 100, 25);
        }
    }
    TurnOff();
}
