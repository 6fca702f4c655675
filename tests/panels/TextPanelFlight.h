#pragma once

#include <bit>
#include <cstdlib>
#include <gtest/gtest.h>
#include <sstream>
#include <utility>

#include "base/Bytes.h"
#include "bench/virtual/VirtualCockpit.h"

// A session in which a panel's logic is driven directly, and what goes out of it.
struct TextPanelFlight : testing::Test, VirtualCockpit {
    OffsetServer& sim = machine.server;
    std::ostringstream told;
    std::ios_base& (*base)(std::ios_base&) = std::dec;  // of the values that are told

    // Goes on with this profile, and begins a session if there is none.
    void FlyWith(const std::string& profile) {
        PutProfile("Default", profile);
        if (!program) Start();
        Connect();
        Window().cmbProfiles.SetListIndex(0);
        Tick();
        Sent();
    }
    // What has gone out by the next tick: controls "number:parameter", virtual buttons "+n" and
    // "-n", keys "n", other writes "offset=value".
    std::string Sent() {
        Tick();
        for (const auto& stroke : machine.keyboard.typed) told << " " << stroke[0].wVk;
        machine.keyboard.typed.clear();
        const std::string text = std::exchange(told, {}).str();
        return text.empty() ? text : text.substr(1);
    }

  private:
    void Note(uint32_t offset, std::span<const uint8_t> bytes) {
        const uint8_t* data = bytes.data();
        const size_t size = bytes.size();
        const uint32_t value = size == 1 ? data[0] : size == 2 ? LoadLE16(data) : LoadLE32(data);
        if (offset == 0x330A) return;  // the client's version
        if (offset == 0x3110) {
            told << " " << value << ":" << base << static_cast<int32_t>(LoadLE32(data + 4));
        } else if (offset == 0x3340) {
            const auto before = sim.Get<uint32_t>(offset);
            told << (before < value ? " +" : " -") << std::bit_width(before ^ value);
        } else {
            told << " " << std::hex << offset << "=" << base << static_cast<int32_t>(value);
        }
        told << std::dec;
    }

    ScopedConnection writing_ = sim.Writing.Connect(
        [this](uint32_t offset, std::span<const uint8_t> bytes) { Note(offset, bytes); });
};
