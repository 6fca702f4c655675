#pragma once

#include <array>
#include <string>
#include <vector>

#include "bench/fuzz/Require.h"
#include "bench/virtual/PanelWatch.h"
#include "bench/virtual/RandomProfile.h"
#include "bench/virtual/VirtualCockpit.h"

// The program with a panel of each kind and actions of all sorts.
struct FuzzCockpit : VirtualCockpit {
    std::array<VirtualDevice*, kPanelIdentities.size()> devices{};

    explicit FuzzCockpit(uint8_t mode) {
        for (size_t i = 0; i < devices.size(); ++i) devices[i] = &Plug(kPanelIdentities[i].kind);
        PutProfile("Default", ProfileOf(mode));
        Require(Start("Splash=0\r\n[Aircrafts]\r\nBaron 58=Default\r\n"));
    }

    // Every report so far was one that its panel understands.
    void RequireRightReports() {
        for (size_t i = 0; i < devices.size(); ++i) {
            RequireEmpty(WrongReports(kPanelIdentities[i].kind, *devices[i]));
        }
    }

  private:
    static const std::string& ProfileOf(uint8_t mode) {
        static const std::array<std::string, 3> kTexts = [] {
            SeededChoices choices(1);
            return std::array{RandomProfile(choices, 0), RandomProfile(choices, 1),
                              RandomProfile(choices, 2)};
        }();
        return kTexts[mode % kTexts.size()];
    }
};
