// A hand-made Orvo.ini: whatever is in it, it loads, and a save and a load give the same options.
#include <cstdlib>
#include <string>

#include "config/cSetupHolder.h"
#include "platform/virtual/VirtualPlatform.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    VirtualPlatform machine;
    machine.files.Put("C:\\Orvo\\Orvo.ini", "[GeneralSetup]\n" + std::string(data, data + size));
    cSetupHolder setup(machine.ini, machine.files, machine.clock, machine.registry, "C:\\Orvo");
    const bool saved = setup.LoadSetup() && bool(setup.SaveSetup());
    cSetupHolder again(machine.ini, machine.files, machine.clock, machine.registry, "C:\\Orvo");
    if (!saved || !again.LoadSetup() || again.AutoQuit != setup.AutoQuit ||
        again.ClickThreshold != setup.ClickThreshold || again.OrvoAffinity != setup.OrvoAffinity ||
        again.MainFormLeft != setup.MainFormLeft) {
        std::abort();
    }
    return 0;
}
