#pragma once

#include "platform/virtual/VirtualPlatform.h"
#include "simlink/actions/EventOutput.h"
#include "simlink/channel/cSession.h"

// A virtual machine with the simulator's window on it, and a client of its channel.
struct SimulatorLink {
    VirtualPlatform machine;
    cSession session{machine.ipc, machine.clock};
    modFSUIPC& fsuipc = session.Fsuipc;
    EventOutput output{session, machine.keyboard, machine.loop};
    int32_t result = -1;

    bool Open(const char* windowClass = "UIPCMAIN") {
        machine.ipc.AddWindow(windowClass);
        return fsuipc.FSUIPC_Open(0, result);
    }
};
