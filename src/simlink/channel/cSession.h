#pragma once

#include <array>
#include <cstdint>
#include <optional>

#include "simlink/channel/AircraftMode.h"
#include "simlink/channel/PendingActs.h"
#include "simlink/channel/cOFFSET.h"
#include "simlink/channel/cOffsetTable.h"
#include "simlink/channel/modFSUIPC.h"

// What all panels work with besides the values of the offset table.
struct SharedValues {
    uint32_t Link = 0;      // number of the present session, or of the last one; from 1
    uint8_t FSVersion = 0;  // the simulator's number
    uint8_t SpecialMode = kStandardMode;
    uint8_t EngineSelected = 1;
    bool GearIsRetractable = false;
    // ADF1 and ADF2 in kHz, for all Radio Panels together: what the simulator has, and what the
    // panels have prepared for a swap.
    std::array<float, 2> AdfActive{};
    std::array<float, 2> AdfStandby{};

    bool operator==(const SharedValues&) const = default;
};

// What is known of the simulator, the way to it, and what all panels work with. It outlives the
// single connection, as the panels' logics go on with the same offsets when the simulator comes
// back.
struct cSession : SharedValues {
    cSession(IpcChannel& channel, Clock& clock) : Fsuipc(channel, clock), OffsetTable(Fsuipc) {}

    // A value of a type of cOFFSET's as it is at this moment. Nothing when the simulator doesn't
    // give it.
    [[nodiscard]] std::optional<double> ReadOffset(int32_t offset, int32_t dataType) {
        cOFFSET source(Fsuipc, offset, dataType);
        if (!source.DirectRead(true)) return std::nullopt;
        return source.Data();
    }
    // Writes one: with the next exchange, or at once with Immediate.
    void WriteOffset(int32_t offset, int32_t dataType, double value, bool Immediate) {
        cOFFSET target(Fsuipc, offset, dataType);
        target.SetData(value);
        target.DirectWrite(Immediate);
    }

    // The same at once with four BCD digits, 0 to 9999.
    void WriteBcd(int32_t offset, int32_t digits) {
        constexpr int32_t kWord = 3;
        cOFFSET target(Fsuipc, offset, kWord);
        target.SetBcd(digits);
        target.DirectWrite(true);
    }

    modFSUIPC Fsuipc;
    cOffsetTable OffsetTable;
    PendingActs Acts;
    bool FSConnected = false;
};
