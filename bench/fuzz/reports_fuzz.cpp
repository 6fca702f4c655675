// Panels that report anything, at any moment.
#include <algorithm>
#include <cstdlib>

#include "panels/multi/ctlMultiPanel.h"
#include "panels/radio/ctlRadioPanel.h"
#include "panels/switch/ctlSwitchPanel.h"
#include "platform/virtual/VirtualPlatform.h"
#include "toolkit/Form.h"
#include "toolkit/HeadlessUi.h"

namespace {

void TakeStep(int16_t speed) {
    if (speed != 1 && speed != 5 && speed != 10 && speed != 20) std::abort();
}

void TakeRadioStep(int32_t rotary, int16_t speed) {
    if (rotary < 0 || rotary > 3) std::abort();
    TakeStep(speed);
}

// Toggles and their states, as the events of a report tell them, must be those of its word.
struct SwitchCheck {
    explicit SwitchCheck(ctlSwitchPanel& panel) {
        panel.RawInput.Connect([this](uint8_t, uint8_t high, uint8_t middle, uint8_t low) {
            word_ = high << 16 | middle << 8 | low;
        });
        panel.SwitchChange.Connect([this](int32_t bit, bool on) {
            Require(std::ranges::count(kSwitchToggleBits, bit) == 1 && ((word_ & bit) != 0) == on);
        });
        panel.SelectorChange.Connect([this](int32_t now, int32_t before) {
            Require(now == (word_ & kSwitchSelectorMask) && before == selector_);
            selector_ = now;
        });
        panel.GearUp.Connect([this] { Require((word_ & SwitchPanelBit::kGearUp) != 0); });
        panel.GearDown.Connect([this] { Require((word_ & SwitchPanelBit::kGearDown) != 0); });
    }

  private:
    static void Require(bool holds) {
        if (!holds) std::abort();
    }

    int32_t word_ = 0;
    int32_t selector_ = 0;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    VirtualPlatform machine;
    HeadlessUi ui;
    Form form(ui);
    const cSetupHolder setup(machine.ini, machine.files, machine.clock, machine.registry,
                             "C:\\Orvo");
    const DeviceServices services = {machine.clock, machine.loop, machine.hid, machine.deckhub,
                                     setup};
    VirtualDevice* devices[] = {&machine.bus.Add(0x06A3, 0x0D06, "multi"),
                                &machine.bus.Add(0x06A3, 0x0D05, "radio"),
                                &machine.bus.Add(0x06A3, 0x0D67, "switch")};
    ctlMultiPanel multi(form, services);
    ctlRadioPanel radio(form, services);
    ctlSwitchPanel switches(form, services);
    const SwitchCheck check(switches);
    for (auto* event : {&multi.RotaryUp, &multi.RotaryDown}) event->Connect(TakeStep);
    for (auto* event : {&radio.RotaryUp, &radio.RotaryDown}) event->Connect(TakeRadioStep);
    multi.Connect("multi");
    radio.Connect("radio");
    switches.Connect("switch");
    for (size_t i = 0; i + 4 < size && i < 4000; i += 5) {
        for (VirtualDevice* device : devices) {
            if (data[i] % 8 == 0) {
                device->SendReport({data[i + 1], data[i + 2]});
            } else {
                device->SendReport({data[i + 1], data[i + 2], data[i + 3], data[i + 4]});
            }
        }
        machine.loop.Advance(data[i]);
    }
    return 0;
}
