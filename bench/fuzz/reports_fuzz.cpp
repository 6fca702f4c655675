// Panels that report anything, at any moment, through device objects and logics of all kinds: the
// events are those of the reports, the displays show digits, and nothing stays pressed in the
// simulator.
#include <algorithm>

#include "bench/fuzz/FuzzCockpit.h"
#include "bench/virtual/ButtonsWatch.h"

namespace {

void TakeStep(int16_t speed) { Require(speed == 1 || speed == 5 || speed == 10 || speed == 20); }

void TakeRadioStep(int32_t rotary, int16_t speed) {
    Require(rotary >= 0 && rotary <= 3);
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
    int32_t word_ = 0;
    int32_t selector_ = 0;
};

void Report(VirtualDevice& device, const uint8_t* bytes, bool whole) {
    if (whole) {
        device.SendReport({0, bytes[0], bytes[1], bytes[2]});
    } else {
        device.SendReport({bytes[0], bytes[1]});
    }
}

// What was begun ends: clicks that wait, and presses.
void Settle(FuzzCockpit& cockpit, const ButtonsWatch& buttons) {
    const auto settled = [&] { return cockpit.program->Session.Acts.Empty() && buttons.AllHeld(); };
    for (int i = 0; i < 3000 && !settled(); ++i) cockpit.Tick();
    Require(settled());
}

// Milliseconds: shorter than a tick or a few of them, or as long as a long press takes.
uint32_t Pause(uint8_t byte) { return byte < 240 ? byte % 24 : 300; }

}  // namespace

// The mode, then five bytes for each report: pause, panel, and the word.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    if (size == 0) return 0;
    FuzzCockpit cockpit(data[0]);
    const SwitchCheck check(cockpit.Switch());
    for (auto* event : {&cockpit.Multi().RotaryUp, &cockpit.Multi().RotaryDown}) {
        event->Connect(TakeStep);
    }
    for (auto* event : {&cockpit.Radio().RotaryUp, &cockpit.Radio().RotaryDown}) {
        event->Connect(TakeRadioStep);
    }
    const ButtonsWatch buttons(cockpit);
    cockpit.Connect();
    for (size_t i = 1; i + 4 < size; i += 5) {
        const size_t panel = data[i + 1] % cockpit.devices.size();
        Report(*cockpit.devices[panel], &data[i + 2], data[i + 1] < 240);
        cockpit.machine.loop.Advance(Pause(data[i]));
    }
    Settle(cockpit, buttons);
    cockpit.RequireRightReports();
    return 0;
}
