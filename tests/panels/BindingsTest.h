#pragma once

#include <gtest/gtest.h>
#include <random>

#include "config/ProfileStore.h"
#include "platform/virtual/VirtualPlatform.h"
#include "simlink/actions/ActionRecord.h"

using Names = std::vector<std::string>;

// Keys of a section: all controls of the first prefix, then of the next. Standards that are too few
// begin again. The values are those to try.
struct KeyGroup {
    Names prefixes, controls, standards;
    Names values = {"None",          "Offset",        "VButton,64,32",
                    "VButton,0,255", "VKey,65,0,-97", "VKey,0,7,32767"};
};

// `Section` is the name of the panel's section without the number.
template <class Holder, const char* Section>
struct BindingsTest : testing::Test {
    VirtualPlatform machine;
    ProfileStore profiles{machine.ini, machine.files, machine.clock, "C:\\Orvo"};
    const std::string head = '[' + std::string(Section) + "1]\r\n";

    Holder LoadedFrom(const std::string& keys, int16_t index = 1) {
        machine.files.Put("C:\\Orvo\\Default.ini", head + keys);
        Holder holder(profiles);
        holder.Index = index;
        holder.LoadSetup();
        return holder;
    }
    // The actions of these keys are virtual buttons, numbered from 0.
    Holder LoadedNumbered(const Names& keys, std::string lines) {
        int n = 0;
        for (const auto& key : keys) lines += key + "=vbutton,64," + std::to_string(n++) + "\r\n";
        return LoadedFrom(lines);
    }
    static void ExpectNumbered(const std::vector<ActionRecord>& actions) {
        int n = 0;
        for (const auto& action : actions) EXPECT_EQ(action.VButtonOrKeyQualifiers, n++);
    }
    std::string Saved(Holder& holder, const std::string& profile = "Default") {
        holder.Profile = profile;
        EXPECT_TRUE(holder.SaveSetup());
        holder.Profile = "Default";
        return machine.files.Look("C:\\Orvo\\" + profile + ".ini").value_or("");
    }
    // All that the holder says, as a file of its own.
    std::string Alone(Holder& holder) {
        machine.files.Delete("C:\\Orvo\\Alone.ini");
        return Saved(holder, "Alone");
    }

    // `groups` are all keys in the order of the file, `second` is the second panel's section.
    void ExpectAllComesBack(const std::vector<KeyGroup>& groups, const std::string& second) {
        std::mt19937 random(1);
        const std::string others = "Unknown=1\r\n" + second;
        for (int round = 0; round < 60; ++round) {
            std::string all, odd;  // lines with values at random; those that aren't standard
            for (const auto& [prefixes, controls, standards, values] : groups) {
                const size_t n = controls.size();
                for (size_t i = 0; i < prefixes.size() * n; ++i) {
                    const std::string& value = values[random() % values.size()];
                    const auto line = prefixes[i / n] + controls[i % n] + '=' + value + "\r\n";
                    all += line;
                    if (value != standards[i % standards.size()]) odd += line;
                }
            }
            Holder two = LoadedFrom(all + others, 2), holder = LoadedFrom(all + others);
            ASSERT_EQ(Alone(two), second);
            ASSERT_EQ(Alone(holder), head + odd);
            ASSERT_EQ(Saved(holder), head + odd + others);
            Holder again = LoadedFrom(odd + others);
            ASSERT_EQ(Alone(again), head + odd);
            holder.LoadDefaults();
            ASSERT_EQ(Saved(holder), head + others);
            ASSERT_EQ(Alone(holder), "") << "no file is made for nothing";
        }
    }

    // Each line of `wrong` has a value that can't be, the one beside it one that can.
    void ExpectStandardInsteadOf(const Names& wrong, const std::string& beside) {
        for (const std::string& line : wrong) {
            Holder holder = LoadedFrom(line + "\r\n" + beside + "\r\n");
            EXPECT_EQ(Alone(holder), head + beside + "\r\n") << line;
            EXPECT_EQ(Saved(holder), head + beside + "\r\n") << line;
        }
    }
};
