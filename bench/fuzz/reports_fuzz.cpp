// Panels that report anything, at any moment.
#include <cstdlib>

#include "panels/multi/ctlMultiPanel.h"
#include "panels/radio/ctlRadioPanel.h"
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

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    VirtualPlatform machine;
    HeadlessUi ui;
    Form form(ui);
    const cSetupHolder setup(machine.ini, machine.files, machine.registry, "C:\\Orvo");
    const DeviceServices services = {machine.clock, machine.loop, machine.hid, machine.deckhub,
                                     setup};
    VirtualDevice* devices[] = {&machine.bus.Add(0x06A3, 0x0D06, "multi"),
                                &machine.bus.Add(0x06A3, 0x0D05, "radio")};
    ctlMultiPanel multi(form, services);
    ctlRadioPanel radio(form, services);
    for (auto* event : {&multi.RotaryUp, &multi.RotaryDown}) event->Connect(TakeStep);
    for (auto* event : {&radio.RotaryUp, &radio.RotaryDown}) event->Connect(TakeRadioStep);
    multi.Connect("multi");
    radio.Connect("radio");
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
