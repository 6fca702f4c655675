// A simulator that answers anything, from the first call on: the program may lose the session, but
// shows nothing that isn't a digit, leaves nothing open, and works as soon as the answers are
// right.
#include <algorithm>

#include "bench/fuzz/FuzzCockpit.h"

namespace {

constexpr int kTicks = 40;

// What becomes of one served block, by four bytes of the input: nothing, a few bytes anywhere in
// its first kilobyte, or all from there on.
void Damage(ByteChoices& choices, std::span<uint8_t> block) {
    const uint32_t how = choices.Below(4);
    if (how == 0) return;
    size_t at = choices.Below(how == 3 ? 8 : 1024);
    for (uint32_t left = how == 3 ? 64 : how; left > 0 && !choices.Ended(); --left) {
        block[at++] = choices.Byte();
    }
}

void PutValues(ByteChoices& choices, OffsetServer& server) {
    constexpr uint32_t kAreas[] = {0x02D4, 0x034C, 0x07BC, 0x0B74, 0x0BE8, 0x3118, 0x6420, 0x6500};
    const uint32_t area = choices.OneOf(kAreas);
    for (uint32_t i = 0; i < 64 && !choices.Ended(); ++i)
        server.Set<uint8_t>(area + i, choices.Byte());
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    ByteChoices choices({data, size});
    FuzzCockpit cockpit(choices.Byte());
    VirtualPlatform& machine = cockpit.machine;
    machine.ipc.AfterServing([&](std::span<uint8_t> block) { Damage(choices, block); });
    machine.ipc.AddWindow("UIPCMAIN");
    machine.loop.Advance(1000);
    for (int tick = 0; tick < kTicks && !choices.Ended(); ++tick) {
        const uint32_t what = choices.Below(8);
        if (what == 0) PutValues(choices, machine.server);
        if (what == 1) {
            VirtualDevice& device = *choices.OneOf(cockpit.devices);
            device.SendReport({0, choices.Byte(), choices.Byte(), choices.Byte()});
        }
        machine.loop.Advance(cockpit.program->Session.FSConnected ? 10 : 1000);
        Require(machine.ipc.OpenViews() <= 1 && machine.ipc.OpenAtoms() <= 1);
    }
    machine.ipc.AfterServing({});
    for (int i = 0; i < 200 && !cockpit.program->Session.FSConnected; ++i) cockpit.Tick();
    machine.loop.Advance(50);
    Require(cockpit.program->Session.FSConnected);
    cockpit.RequireRightReports();
    return 0;
}
