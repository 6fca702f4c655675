#pragma once

#include <array>
#include <cstdint>

#include "simlink/channel/cOFFSET.h"
#include "simlink/channel/cOffsetTable.h"
#include "simlink/channel/modFSUIPC.h"

// Values of SpecialMode: which aircraft's own autopilot the panels work against.
inline constexpr uint8_t kStandardMode = 0;
inline constexpr uint8_t kMaddogMode = 1;
inline constexpr uint8_t kNGXMode = 2;

// What is known of the simulator, the way to it, and what all panels work with. It outlives the
// single connection, as the panels' logics go on with the same offsets when the simulator comes
// back.
struct cSession {
    cSession(IpcChannel& channel, Clock& clock) : Fsuipc(channel, clock), OffsetTable(Fsuipc) {}

    // Writes a value of a type of cOFFSET's: with the next exchange, or at once with Immediate.
    void WriteOffset(int32_t offset, int32_t dataType, double value, bool Immediate) {
        cOFFSET target(Fsuipc, offset, dataType);
        target.SetData(value);
        target.DirectWrite(Immediate);
    }

    modFSUIPC Fsuipc;
    cOffsetTable OffsetTable;
    bool FSConnected = false;
    uint8_t FSVersion = 0;  // the simulator's number
    uint8_t SpecialMode = kStandardMode;
    uint8_t EngineSelected = 1;
    bool GearIsRetractable = false;
    // ADF1 and ADF2 in kHz, for all Radio Panels together: what the simulator has, and what the
    // panels have prepared for a swap.
    std::array<float, 2> AdfActive{};
    std::array<float, 2> AdfStandby{};
};
