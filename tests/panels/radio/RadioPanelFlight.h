#pragma once

#include <algorithm>
#include <cstdio>

#include "tests/panels/TextPanelFlight.h"

// A session with two Radio Panels, whose logics are driven directly.
struct RadioPanelFlight : TextPanelFlight {
    VirtualDevice& device = Plug(PanelKind::Radio);
    VirtualDevice& device2 = Plug(PanelKind::Radio, 2);
    int panel = 1;
    uint8_t side = 1;
    int16_t ring = 0;

    RadioPanelFlight() { base = std::hex; }  // BCD reads as its digits
    void Fly(std::string keys = "") {
        std::ranges::replace(keys, '&', '\n');
        FlyWith("[Common]\n" + keys + "\n[RadioPanel1]\n" + keys + "\n[RadioPanel2]\nADFMode=3");
    }
    // What the user does, as in "upper 1 inner +5 outer -1 click long up": a number moves the row's
    // selector, or with a sign its ring; panel, row and ring stay as named last. "ADFMode=3&a=b" is
    // a profile, "354:1200" what the simulator has, "," a tick. Gives what has gone out, with the
    // ticks, and with the engine where "?" asks for it.
    std::string Do(const std::string& acts) {
        std::istringstream in(acts);
        for (std::string word; in >> word;) {
            cRadioPanelLogic& logic = RadioLogic(panel);
            const int n = std::atoi(word.c_str()), button = 0x4000 * side;
            const auto speed = static_cast<uint8_t>(std::abs(n));
            uint32_t at = 0, value = 0;
            const bool sets = std::sscanf(word.c_str(), "%x:%x", &at, &value) == 2;
            if (sets) sim.Set<uint16_t>(at, static_cast<uint16_t>(value));
            if (word == "first" || word == "second") panel = word == "first" ? 1 : 2;
            if (word == "upper" || word == "lower") side = word == "upper" ? 1 : 2;
            if (word == "inner" || word == "outer") ring = word == "inner" ? 0 : 1;
            if (word == "click") logic.ButtonClick(button);
            if (word == "long") logic.ButtonLongClick(button);
            if (word == "up") logic.ButtonUp(button);
            if (word[0] >= '0' && word[0] <= '7' && !sets) logic.SelectorChange(side, n, 0);
            if (word[0] == '+' || word[0] == '-') logic.Rotary(ring, n > 0, side, speed);
            if (word.find('=') != std::string::npos) Fly(word);
            if (word == ",") Tick();
            if (word == ",") told << " ,";
            if (word == "?") told << " " << int{program->Session.EngineSelected};
        }
        return Sent();
    }
    // Steps, with ';' or a new line between: "acts => what that has sent, and active|standby then".
    void Check(std::string steps) {
        std::ranges::replace(steps, '\n', ';');
        std::istringstream in(steps);
        for (std::string step; std::getline(in, step, ';');) {
            const size_t arrow = step.find("=> ");
            std::string seen = Do(step.substr(0, arrow));
            const auto& row = Radio(panel).OnScreen.At(side);
            seen.append(seen.empty() ? "" : " ").append(row.labActive.Caption.Get());
            EXPECT_EQ(seen + "|" + row.labStandby.Caption.Get(), step.substr(arrow + 3)) << step;
        }
    }
};
