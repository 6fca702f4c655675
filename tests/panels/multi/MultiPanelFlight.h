#pragma once

#include "tests/panels/PanelFlight.h"

// A session with one Multi Panel, whose logic is driven directly.
struct MultiPanelFlight : PanelFlight {
    VirtualDevice& device = Plug(PanelKind::Multi);
    int32_t position = 0;

    void Fly(const std::string& mode = "", const std::string& keys = "") {
        FlyWith("[Common]\r\nSpecialMode=" + mode + "\r\n[MultiPanel1]\r\n" + keys);
    }
    // What the user does, as in "selector 4 knob +20 trim -1 flaps +1 click 3 long 3 throttle 0".
    // Gives what that has sent.
    std::string Do(const std::string& acts) {
        std::istringstream in(acts);
        std::string what;
        for (int n = 0; in >> what >> n;) {
            const std::string_view known = "selector knob trim flaps click long throttle";
            if (known.find(what) == known.npos) ADD_FAILURE() << "nobody can " << what;
            const auto up = static_cast<int16_t>(n > 0), speed = static_cast<int16_t>(std::abs(n));
            if (what == "selector") Logic().SelectorChange(n, std::exchange(position, n));
            if (what == "knob") Logic().Rotary(up, speed);
            if (what == "trim") Logic().Trim(up, speed);
            if (what == "flaps") Logic().Flaps(up);
            if (what == "click") Logic().ButtonClick(n);
            if (what == "long") Logic().ButtonLongClick(n);
            if (what == "throttle") Logic().AutoThrottleChange(speed);
        }
        return Sent();
    }
    std::string Rows(int32_t at) {
        Do("selector " + std::to_string(at));
        return Shown();
    }
    int Lights() { return device.featureReports.back()[11]; }
};
