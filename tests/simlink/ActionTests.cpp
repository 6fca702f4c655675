#include <gtest/gtest.h>
#include <tuple>

#include "base/Bytes.h"
#include "base/Number.h"
#include "bench/virtual/SimulatorLink.h"
#include "simlink/actions/ActionText.h"
#include "simlink/actions/KeyStrokeText.h"

namespace {

using enum ActionKind;

struct ActionTest : testing::Test, SimulatorLink {};

TEST_F(ActionTest, WholeTextsAreTakenAndOthersLeaveTheRecord) {
    const std::pair<const char*, const char*> whole[] = {{"none", "None"},
                                                         {"OFFSET", "Offset"},
                                                         {"vbutton,0,255", "VButton,0,255"},
                                                         {"VKEY,65,3,-65", "VKey,65,3,-65"},
                                                         {" VButton , 64,\t3", "VButton,64,3"},
                                                         {"VKey, 65, 1 , 97", "VKey,65,1,97"}};
    ActionRecord record{VKey, 7, 8, 9};
    for (const char* text :
         {"", ",", "Macro,1", "Nonesuch", "VButton", "VButton,64", "VButton,64,", "VButton,256,1",
          "VButton,-1,1", "VButton,64,1x", "VKey,65,3", "VKey,65,3,", "VKey,65,3,32768"}) {
        ReadAction(text, record);
        EXPECT_EQ(record, (ActionRecord{VKey, 7, 8, 9})) << text;
    }
    for (const auto& [text, expected] : whole) {
        ReadAction(text, record);
        EXPECT_EQ(ActionText(record), expected);
    }
}

TEST_F(ActionTest, VirtualButtonsAreBitsAndEachPressIsSeenBeforeItsRelease) {
    ASSERT_TRUE(session.FSConnected = Open());
    std::vector<uint32_t> seen;
    machine.server.Written.Connect(
        [&](uint32_t, std::span<const uint8_t> bytes) { seen.push_back(LoadLE32(bytes.data())); });
    const std::tuple<uint8_t, uint8_t, uint32_t, uint32_t> cases[] = {
        {64, 1, 0x3340, 1}, {65, 9, 0x3344, 0x100}, {72, 32, 0x3360, 0x80000000}};
    for (const auto& [joystick, button, offset, bit] : cases) {
        const uint32_t off = 0x5A5AA5A4 & ~bit, on = off | bit;
        machine.server.Set<uint32_t>(offset, off);
        output.SetVirtualButton(joystick, button, true, true);
        EXPECT_EQ(machine.server.Get<uint32_t>(offset), on) << "at once";
        output.SetVirtualButton(joystick, button, false, true);
        seen.clear();
        output.SendAction({VButton, joystick, button, 0}, 2);
        machine.loop.Advance(1);
        EXPECT_EQ(seen, (std::vector{on, off, on})) << "the last release waits";
        fsuipc.FSUIPC_Process(result);
        EXPECT_EQ(machine.server.Get<uint32_t>(offset), off);
    }
    seen.clear();
    const std::pair<uint8_t, uint8_t> nowhere[] = {{63, 1}, {73, 1}, {64, 0}, {64, 33}};
    for (const auto& [stick, button] : nowhere) output.SendAction({VButton, stick, button, 0});
    fsuipc.FSUIPC_Process(result);
    EXPECT_TRUE(seen.empty() && result == kFsuipcEmptyBatch);
    machine.ipc.TimeOut(11);
    output.SendAction({VButton, 64, 1, 0}, 20);
    machine.loop.Advance(100);
    fsuipc.FSUIPC_Process(result);
    EXPECT_TRUE(seen.empty() && result == kFsuipcEmptyBatch) << "no press without its release";
    machine.ipc.RemoveWindows();
    const uint32_t before = machine.clock.GetTickCount();
    output.SendAction({VButton, 64, 1, 0}, 20);
    machine.loop.Advance(100);
    EXPECT_LE(machine.clock.GetTickCount() - before, 1000U) << "one exchange without an answer";
    machine.loop.Post([&] { session.FSConnected = false; });
    output.SendAction({VKey, 65, 0, 0}, 20);
    EXPECT_EQ(machine.keyboard.typed.size(), 1U) << "the session has ended under the first";
}

TEST_F(ActionTest, KeystrokesCarryTheirQualifiersAndLetMessagesRun) {
    const std::pair<uint8_t, const char*> cases[] = {
        {0, "65 -65 "}, {5, "16 9 65 -65 -9 -16 "}, {7, "16 17 9 65 -65 -9 -17 -16 "}};
    for (const auto& [qualifiers, expected] : cases) {
        std::string typed;
        machine.loop.Post([&] {
            for (const KeyRecord& key : machine.keyboard.typed.back()) {
                typed += FormatInteger(key.up ? -key.wVk : key.wVk) + ' ';
            }
        });
        output.SendAction({VKey, 65, qualifiers, 0});
        EXPECT_EQ(typed, expected) << "what waits runs, behind the keystroke";
    }
    EXPECT_EQ(machine.keyboard.typed.size(), 3U) << "one call for each";
}

TEST_F(ActionTest, KeysHaveNames) {
    const std::tuple<uint8_t, uint8_t, int16_t, const char*> cases[] = {
        {65, 0, 97, "A"},
        {65, 0, -1, "???"},
        {192, 6, 0xE4, "CTRL-TAB-\xC4"},
        {95, 4, 0, "TAB-???"},
        {96, 1, 'x', "SHIFT-NUMPAD 0"},
        {105, 8, 0, "NUMPAD 9"},
        {108, 0, 256, "???"},
        {112, 3, 0, "CTRL-SHIFT-F1"},
        {127, 7, 0, "CTRL-SHIFT-TAB-F16"},
        {128, 2, '.', "CTRL-."},
        {145, 5, 0, "SHIFT-TAB-SCROLL LOCK"}};
    for (const auto& [code, qualifiers, ascii, name] : cases) {
        EXPECT_EQ(KeyStrokeText(code, qualifiers, ascii), name);
    }
}

}  // namespace
