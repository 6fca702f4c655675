#pragma once

#include <cstdint>

#include "simlink/cOffsetTable.h"
#include "simlink/modFSUIPC.h"

// What is known of the simulator. It outlives the single connection, as the panels' logics go on
// with the same offsets when the simulator comes back.
struct cSession {
    cSession(IpcChannel& channel, Clock& clock) : Fsuipc(channel, clock), OffsetTable(Fsuipc) {}

    modFSUIPC Fsuipc;
    cOffsetTable OffsetTable;
    bool FSConnected = false;
    uint8_t FSVersion = 0;    // the simulator's number
    uint8_t SpecialMode = 0;  // 0 none, 1 Maddog, 2 NGX
    uint8_t EngineSelected = 1;
    bool GearIsRetractable = false;
};
