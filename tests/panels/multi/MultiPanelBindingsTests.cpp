#include <gtest/gtest.h>
#include <random>

#include "base/Number.h"
#include "panels/multi/cMultiPanelActionsHolder.h"
#include "platform/virtual/VirtualPlatform.h"

namespace {

using Holder = cMultiPanelActionsHolder;
using Names = std::vector<std::string>;
const Names kPositions = {"ALT", "VS", "IAS", "HDG", "CRS"};
const Names kButtons = {"AP", "HDG", "NAV", "IAS", "ALT", "VS", "APR", "REV"};

// Keys of the file in their order; where `high` is 0 they hold actions.
const struct {
    std::string prefix;
    Names controls, standards;
    int high = 0, low = 0;
    std::string suffix = "";
} kGroups[] = {{"SelectorAction", kPositions, Names(5, "None")},
               {"RotUpAction", kPositions, Names(5, "Offset")},
               {"RotDownAction", kPositions, Names(5, "Offset")},
               {"ButtonAction", kButtons, Names(8, "Offset")},
               {"LongButtonAction", kButtons, Names(8, "Offset")},
               {"AutoThrottleAction", {"OFF", "ARM"}, Names(2, "Offset")},
               {"FlapsAction", {"DOWN", "UP"}, Names(2, "Offset")},
               {"TrimAction", {"DOWN", "UP"}, Names(2, "Offset")},
               {"RotaryAcceleration", kPositions, Names(5, "1"), 3, -1},
               {"NGX", kButtons, {"12", "7", "4", "3", "10", "11", "9", "8"}, 22, 0, "Short"},
               {"NGX", kButtons, {"14", "13", "5", "2", "18", "6", "0", "1"}, 22, 0, "Long"},
               {"", {"CourseSel"}, {"1"}, 2},
               {"", {"TrimAcceleration"}, {"1"}, 32767, -32768},
               {"", {"TrimSensitivity"}, {"4"}, 5, 3},
               {"Reverse", {"Trim", "Flaps"}, {"0", "0"}, 1}};

// A line for each key with a value at random, and those of them that aren't standard.
std::pair<std::string, std::string> RandomLines(uint32_t seed) {
    std::mt19937 random(seed);
    const auto number = [&](int high, int low = 0) {
        return FormatInteger(std::uniform_int_distribution(low, high)(random));
    };
    std::string all, odd;
    for (const auto& [prefix, controls, standards, high, low, suffix] : kGroups) {
        for (size_t i = 0; i < controls.size(); ++i) {
            const std::string two = number(255) + ',' + number(255);
            const Names actions = {"None", "Offset", "VButton," + two,
                                   "VKey," + two + ',' + number(32767, -32768)};
            const std::string value = high ? number(high, low) : actions[random() % 4];
            const std::string line = prefix + controls[i] + suffix + '=' + value + "\r\n";
            all += line;
            if (value != standards[i]) odd += line;
        }
    }
    return {all, odd};
}

struct MultiPanelBindingsTest : testing::Test {
    VirtualPlatform machine;
    ProfileStore profiles{machine.ini, machine.files, "C:\\Orvo"};
    const std::string head = "[MultiPanel1]\r\n";

    Holder Loaded(int16_t index = 1) {
        Holder holder(profiles);
        holder.Index = index;
        holder.LoadSetup();
        return holder;
    }
    Holder LoadedFrom(const std::string& keys) {
        machine.files.Put("C:\\Orvo\\Default.ini", head + keys);
        return Loaded();
    }
    std::string Saved(Holder& holder) {
        holder.SaveSetup();
        return machine.files.Look("C:\\Orvo\\" + profiles.CurrentProfile + ".ini").value_or("");
    }
    // All that the holder says, as a file of its own.
    std::string Alone(Holder& holder) {
        profiles.CurrentProfile = "Alone";
        machine.files.Delete("C:\\Orvo\\Alone.ini");
        const std::string text = Saved(holder);
        profiles.CurrentProfile = "Default";
        return text;
    }
};

TEST_F(MultiPanelBindingsTest, EveryHolderComesBackAndItsFileHoldsJustWhatDiffers) {
    const std::string others = "Unknown=1\r\n[MultiPanel2]\r\nReverseFlaps=1\r\n";
    for (uint32_t seed = 1; seed <= 60; ++seed) {
        const auto [all, odd] = RandomLines(seed);
        Holder holder = LoadedFrom(all + others);
        ASSERT_EQ(Alone(holder), head + odd) << "seed " << seed;
        ASSERT_EQ(Saved(holder), head + odd + others) << "seed " << seed;
        Holder again = Loaded(), second = Loaded(2);
        ASSERT_EQ(Alone(again), head + odd) << "seed " << seed;
        ASSERT_EQ(Alone(second), "[MultiPanel2]\r\nReverseFlaps=1\r\n");
        holder.LoadDefaults();
        ASSERT_EQ(Saved(holder), head + others);
        EXPECT_EQ(Alone(holder), "") << "no file is made for nothing";
    }
}

TEST_F(MultiPanelBindingsTest, KeysAreThoseOfTheirControls) {
    std::string keys = "RotaryAccelerationVS=8\r\nNGXHDGShort=9\r\nNGXHDGLong=10\r\n";
    const Names actions = {"SelectorActionCRS", "RotUpActionALT",     "RotDownActionALT",
                           "ButtonActionREV",   "LongButtonActionAP", "AutoThrottleActionARM",
                           "FlapsActionUP",     "TrimActionDOWN"};
    for (size_t i = 0; i < 8; ++i) keys += actions[i] + "=VButton,64," + std::to_string(i) + "\r\n";
    const Holder holder = LoadedFrom(keys);
    std::vector<int> found;
    for (const ActionRecord& record :
         {holder.GetSelectorActions(5), holder.GetRotUpActions(1), holder.GetRotDownActions(1),
          holder.GetButtonsActions(8), holder.GetLongButtonsActions(1),
          holder.GetAutoThrottleActions(1), holder.GetFlapsActions(1), holder.GetTrimActions(0)}) {
        found.push_back(record.VButtonOrKeyQualifiers);
    }
    found.push_back(holder.GetRotAcceleration(2));
    found.push_back(holder.NGXGetShortButtonsActions(2));
    found.push_back(holder.NGXGetLongButtonsActions(2));
    EXPECT_EQ(found, (std::vector{0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10}));
}

TEST_F(MultiPanelBindingsTest, WhatAHandWroteWrongKeepsTheStandardAndGoesAtTheNextSave) {
    for (const std::string key :
         {"CourseSel=3", "CourseSel=-1", "NGXAPShort=23", "NGXREVLong=x", "RotaryAccelerationVS=",
          "TrimAcceleration=32768", "ReverseTrim=256", "ReverseFlaps=-1", "SelectorActionALT=X,1",
          "ButtonActionAP=VButton,64", "FlapsActionUP=Offset\r\nFlapsActionUP=None"}) {
        Holder holder = LoadedFrom(key + "\r\nTrimSensitivity=-32768\r\n");
        EXPECT_EQ(Alone(holder), head + "TrimSensitivity=-32768\r\n") << key;
        EXPECT_EQ(Saved(holder), head + "TrimSensitivity=-32768\r\n") << key;
    }
}

TEST_F(MultiPanelBindingsTest, OddValuesAndSpellings) {
    Holder holder = LoadedFrom("buttonactionap=None\r\nReverseTrim=7\r\n");
    EXPECT_EQ(holder.ReverseTrim, 7);
    EXPECT_EQ(Alone(holder), "") << "the name of the action counts with its case";
    holder.SetButtonsActions(1, {ActionKind::VKey, 65, 1, 97});
    holder.SetSelectorActions(1, {ActionKind::None, 1, 2, 3});
    for (const int32_t nowhere : {-1, 0, 6}) holder.SetRotUpActions(nowhere, {});
    holder.NGXSetLongButtonsActions(1, 23);
    EXPECT_EQ(Saved(holder), head + "ButtonActionAP=VKey,65,1,97\r\n");
    Holder again = Loaded();
    EXPECT_EQ(Saved(again), head + "ButtonActionAP=VKey,65,1,97\r\n");
    EXPECT_EQ(again.GetSelectorActions(1), ActionRecord{}) << "the fields behind None are gone";
}

}  // namespace
