// A panel that reports anything, at any moment.
#include <cstdlib>

#include "panels/multi/ctlMultiPanel.h"
#include "platform/virtual/VirtualPlatform.h"
#include "toolkit/Form.h"
#include "toolkit/HeadlessUi.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    VirtualPlatform machine;
    HeadlessUi ui;
    Form form(ui);
    const cSetupHolder setup(machine.ini, machine.files, machine.registry, "C:\\Orvo");
    VirtualDevice& device = machine.bus.Add(0x06A3, 0x0D06, "multi");
    ctlMultiPanel panel(form, {machine.clock, machine.loop, machine.hid, machine.deckhub, setup});
    panel.RotaryUp.Connect([](int16_t speed) {
        if (speed != 1 && speed != 5 && speed != 10 && speed != 20) std::abort();
    });
    panel.Connect("multi");
    for (size_t i = 0; i + 4 < size && i < 4000; i += 5) {
        if (data[i] % 8 == 0) {
            device.SendReport({data[i + 1], data[i + 2]});
        } else {
            device.SendReport({data[i + 1], data[i + 2], data[i + 3], data[i + 4]});
        }
        machine.loop.Advance(data[i]);
    }
    return 0;
}
