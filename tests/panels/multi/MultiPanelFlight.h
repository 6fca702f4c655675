#pragma once

#include <bit>
#include <cstdlib>
#include <gtest/gtest.h>
#include <sstream>
#include <string>
#include <utility>

#include "base/Bytes.h"
#include "bench/virtual/VirtualCockpit.h"

// A session with one Multi Panel, whose logic is driven directly.
struct MultiPanelFlight : testing::Test, VirtualCockpit {
    VirtualDevice& device = Plug(PanelKind::Multi);
    OffsetServer& sim = machine.server;
    int32_t position = 0;

    void Fly(const std::string& mode = "", const std::string& keys = "") {
        PutProfile("Default", "[Common]\r\nSpecialMode=" + mode + "\r\n[MultiPanel1]\r\n" + keys);
        if (!program) Start();
        Connect();
        Window().cmbProfiles.SetListIndex(0);
        Tick();
        Do("");
    }
    // What the user does, as in "selector 4 knob +20 trim -1 flaps +1 click 3 long 3 throttle 0".
    // Gives what has gone out by the next tick: controls "number:parameter", virtual buttons "+n"
    // and "-n", keys "n", other writes "offset=value".
    std::string Do(const std::string& acts) {
        std::istringstream in(acts);
        std::string what;
        for (int n = 0; in >> what >> n;) {
            const auto up = static_cast<int16_t>(n > 0), speed = static_cast<int16_t>(std::abs(n));
            if (what == "selector")
                Logic().SelectorChange(n, std::exchange(position, n));
            else if (what == "knob")
                Logic().Rotary(up, speed);
            else if (what == "trim")
                Logic().Trim(up, speed);
            else if (what == "flaps")
                Logic().Flaps(up);
            else if (what == "click")
                Logic().ButtonClick(n);
            else if (what == "long")
                Logic().ButtonLongClick(n);
            else if (what == "throttle")
                Logic().AutoThrottleChange(speed);
            else
                ADD_FAILURE() << "nobody can " << what;
        }
        Tick();
        for (const auto& stroke : machine.keyboard.typed) sent_ << " " << stroke[0].wVk;
        machine.keyboard.typed.clear();
        const std::string sent = std::exchange(sent_, {}).str();
        return sent.empty() ? sent : sent.substr(1);
    }
    std::string Rows(int32_t at) {
        Do("selector " + std::to_string(at));
        return Shown();
    }
    int Lights() { return device.featureReports.back()[11]; }

  private:
    void Note(uint32_t offset, std::span<const uint8_t> bytes) {
        const uint8_t* data = bytes.data();
        const uint32_t value = bytes.size() == 2 ? LoadLE16(data) : LoadLE32(data);
        if (offset == 0x3110) {
            sent_ << " " << value << ":" << static_cast<int32_t>(LoadLE32(data + 4));
        } else if (offset == 0x3340) {
            const auto before = sim.Get<uint32_t>(offset);
            sent_ << (before < value ? " +" : " -") << std::bit_width(before ^ value);
        } else {
            sent_ << " " << std::hex << offset << std::dec << "=" << static_cast<int32_t>(value);
        }
    }

    std::ostringstream sent_;
    ScopedConnection writing_ = sim.Writing.Connect(
        [this](uint32_t offset, std::span<const uint8_t> bytes) { Note(offset, bytes); });
};
