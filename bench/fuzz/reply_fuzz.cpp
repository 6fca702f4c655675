// The simulator's answer: any block at all must leave everything but the destinations as it was.
#include <algorithm>
#include <array>
#include <cstdlib>

#include "platform/virtual/VirtualPlatform.h"
#include "simlink/channel/cSession.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    VirtualPlatform machine;
    cSession session(machine.ipc, machine.clock);
    machine.ipc.AddWindow("UIPCMAIN");
    int32_t result = 0;
    if (!session.Fsuipc.FSUIPC_Open(0, result)) std::abort();
    std::array<uint8_t, 3> guard{};
    session.Fsuipc.FSUIPC_Read(0x10, 1, &guard[1], result);
    session.Fsuipc.FSUIPC_Write(0x20, 1, &guard[0], result);
    session.OffsetTable.RegisterOffset(0x3D00, 9, "AIRCRAFT", 60);
    session.OffsetTable.QueueReads();
    machine.ipc.AfterServing([&](std::span<uint8_t> block) {
        std::copy_n(data, std::min(size, block.size()), block.begin());
    });
    session.Fsuipc.FSUIPC_Process(result);
    if (guard[0] != 0 || guard[2] != 0) std::abort();
    if (session.OffsetTable.Item("AIRCRAFT")->Text().size() > 60) std::abort();
    return 0;
}
