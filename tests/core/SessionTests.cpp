#include <algorithm>
#include <gtest/gtest.h>

#include "bench/virtual/VirtualCockpit.h"

namespace {

const VirtualDevice::Report kDark = {0, 15, 15, 15, 15, 15, 15, 15, 15, 15, 15, 0, 0};

struct SessionTest : testing::Test, VirtualCockpit {
    VirtualDevice& panel = Plug(PanelKind::Multi);

    std::string Texts() {
        return Window().Status.Text.Get() + "|" + Window().FSUIPCver.Text.Get() + "|" +
               Window().FSver.Text.Get() + "|" + Window().Aircraft.Text.Get();
    }
    void Begin(const std::string& options = "Splash=0\r\n") {
        ASSERT_TRUE(Start(options));
        Connect();
    }
    size_t MessagesWithin(uint32_t milliseconds) {
        machine.ipc.ForgetSentMessages();
        machine.loop.Advance(milliseconds);
        return machine.ipc.SentMessages().size();
    }
    const TrayRecord& Icon() { return machine.tray.records.back().second; }

    static constexpr const char* kDisconnected =
        "FSUIPC Status: Disconnected|FSUIPC Version:|Flight Simulator Version:|Aircraft in use:";
};

TEST_F(SessionTest, LooksForTheSimulatorOnceASecondUntilItComesUp) {
    ASSERT_TRUE(Start());
    machine.loop.Advance(5000);
    EXPECT_EQ(machine.ipc.CallCount(IpcCall::FindWindowExA), 10U) << "two classes, five times";
    EXPECT_EQ(Texts(), kDisconnected);
    machine.ipc.AddWindow("UIPCMAIN");
    machine.loop.Advance(1000);
    EXPECT_EQ(Texts(),
              "FSUIPC Status: Connected|FSUIPC Version: 3.9990|Flight Simulator Version: FSX|"
              "Aircraft in use:");
    EXPECT_EQ(Icon().icon, TrayIcon::Green);
    EXPECT_EQ(Icon().tip, "Connected...");
    EXPECT_EQ(program->Session.FSVersion, 8);
    Tick();
    EXPECT_EQ(Window().Aircraft.Text.Get(), "Aircraft in use: Baron 58");
    EXPECT_EQ(MessagesWithin(1000), 100U) << "one exchange in 10 ms";
}

// The clock goes on while the machine sleeps.
TEST_F(SessionTest, ANightAsleepCostsOneTick) {
    Begin();
    machine.clock.Sleep(8 * 3600 * 1000);
    EXPECT_EQ(MessagesWithin(99), 10U);
    EXPECT_TRUE(program->Session.FSConnected);
}

TEST_F(SessionTest, SimulatorNumbersBeyondTheListShowAsNumbers) {
    const std::pair<uint16_t, const char*> cases[] = {
        {0, "Any"}, {10, "P3D"}, {11, "11"}, {300, "300"}};
    ASSERT_TRUE(Start());
    for (const auto& [number, name] : cases) {
        machine.server.SetVersion(0x41530000, number);
        Connect();
        EXPECT_EQ(Window().FSver.Text.Get(), std::string("Flight Simulator Version: ") + name);
        EXPECT_EQ(Window().FSUIPCver.Text.Get(), "FSUIPC Version: 4.1530");
        LoseSimulator();
    }
}

TEST_F(SessionTest, AircraftIsBoundWhenItsTitleChanges) {
    int bindings = 0;
    const ScopedConnection reads = machine.server.Reading.Connect(
        [&](uint32_t offset, uint32_t) { bindings += offset == 0x060C ? 1 : 0; });
    machine.server.Set<int16_t>(0x060C, 1);
    Begin(), Tick();
    EXPECT_EQ(bindings, 1);
    EXPECT_TRUE(program->Session.GearIsRetractable);
    SetTitle(""), Tick();
    EXPECT_EQ(bindings, 1);
    EXPECT_EQ(Window().Aircraft.Text.Get(), "Aircraft in use: ");
    SetTitle("Baron 58"), Tick();
    EXPECT_EQ(bindings, 1) << "an empty title in between changes nothing";
    SetTitle(std::string(100, 'T')), Tick();
    EXPECT_EQ(Window().Aircraft.Text.Get(), "Aircraft in use: " + std::string(60, 'T'));
}

// As while a flight loads.
TEST_F(SessionTest, WhatTheSimulatorDoesNotGiveAtOnceIsAskedForAgain) {
    const std::pair<uint32_t, uint32_t> asked[] = {{0x3304, 4}, {0x3308, 2}, {0x060C, 2}};
    machine.server.Set<int16_t>(0x060C, 1);
    machine.server.SetVersion(0x39990005, 7);
    int refusals = 0;
    bool open = false;
    const ScopedConnection reads =
        machine.server.Reading.Connect([&](uint32_t offset, uint32_t count) {
            if (!open || refusals == 0) return;
            for (const auto& each : asked) {
                if (each != std::pair(offset, count)) continue;
                --refusals;
                machine.ipc.AnswerWith(0, 1);
            }
        });
    ASSERT_TRUE(Start());
    Window().Driver.Connected.Connect([&] { open = true, refusals = 6; });
    Connect();
    EXPECT_EQ(program->Session.FSVersion, 0);
    EXPECT_EQ(Texts(),
              "FSUIPC Status: Connected|FSUIPC Version:|Flight Simulator Version:|"
              "Aircraft in use: Baron 58");
    for (int tick = 0; tick < 6; ++tick) Tick();
    EXPECT_EQ(refusals, 0);
    EXPECT_EQ(program->Session.FSVersion, 7);
    EXPECT_TRUE(program->Session.GearIsRetractable);
    EXPECT_EQ(Texts(),
              "FSUIPC Status: Connected|FSUIPC Version: 3.9990|Flight Simulator Version: FS2004|"
              "Aircraft in use: Baron 58");
    EXPECT_EQ(MessagesWithin(100), 10U) << "and not once it is known";
}

TEST_F(SessionTest, InputWithoutASessionIsDropped) {
    ASSERT_TRUE(Start());
    // The channel alone is no session; a write that got into its batch would go out.
    machine.ipc.AddWindow("UIPCMAIN");
    int32_t result = 0;
    ASSERT_TRUE(program->Session.Fsuipc.FSUIPC_Open(0, result));
    Multi().SelectorChange.Raise(MultiPanelBit::kSelectorHDG, 0);
    Multi().RotaryUp.Raise(1);
    EXPECT_FALSE(program->Session.Fsuipc.FSUIPC_Process(result));
    EXPECT_EQ(result, 10);
    program->Session.FSConnected = true;
    Multi().RotaryUp.Raise(1);
    EXPECT_FALSE(program->Session.Fsuipc.FSUIPC_Process(result))
        << "the selector's place was not kept either";
}

TEST_F(SessionTest, LostSessionDarkensThePanelAndIsFoundAgain) {
    panel.positions = {0, 0x08, 0, 0};
    Begin();
    const uint32_t shape = program->Session.OffsetTable.Shape();
    LoseSimulator();
    EXPECT_FALSE(program->Session.FSConnected);
    EXPECT_EQ(Texts(), kDisconnected);
    EXPECT_EQ(Icon().tip, "Waiting FS connection...");
    EXPECT_EQ(panel.featureReports.back(), kDark);
    EXPECT_EQ(machine.ipc.OpenViews() + machine.ipc.OpenAtoms() + machine.ipc.OpenMappings(), 0U);
    machine.loop.Advance(3000);
    EXPECT_EQ(panel.featureReports.back(), kDark);
    Connect(), Tick();
    EXPECT_EQ(Window().Status.Text.Get(), "FSUIPC Status: Connected");
    EXPECT_EQ(Window().Aircraft.Text.Get(), "Aircraft in use: Baron 58");
    EXPECT_NE(panel.featureReports.back(), kDark);
    EXPECT_EQ(program->Session.OffsetTable.Shape(), shape) << "no entry twice";
}

TEST_F(SessionTest, ServersThatMisbehaveEndTheSessionAndNothingElse) {
    ASSERT_TRUE(Start());
    machine.ipc.AddWindow("UIPCMAIN");
    machine.loop.Advance(1000);
    machine.ipc.AfterServing([](std::span<uint8_t> block) { block[0] = 9; });
    Tick();
    EXPECT_FALSE(program->Session.FSConnected) << "garbage";
    EXPECT_EQ(MessagesWithin(5000), 5U) << "tried once a second";
    EXPECT_EQ(Texts(), kDisconnected);
    machine.ipc.AfterServing({});
    machine.loop.Advance(2000);
    EXPECT_TRUE(program->Session.FSConnected);
    machine.ipc.TimeOut(11);
    Tick();
    EXPECT_FALSE(program->Session.FSConnected) << "silence";
    machine.ipc.Refuse(IpcCall::SendMessageTimeoutA);
    machine.loop.Advance(5000);
    EXPECT_FALSE(program->Session.FSConnected) << "refused, as a simulator with more rights is";
    machine.ipc.Refuse(IpcCall::SendMessageTimeoutA, 0);
    machine.loop.Advance(2000);
    EXPECT_TRUE(program->Session.FSConnected);
}

TEST_F(SessionTest, AutoQuitLeavesWithTheSimulator) {
    Begin("Splash=0\r\nAutoQuit=1\r\n"), LoseSimulator();
    EXPECT_TRUE(Window().IsUnloaded());
    EXPECT_TRUE(machine.loop.QuitWasCalled());
    EXPECT_NE(machine.files.Look("C:\\Orvo\\Orvo.ini")->find("OrvoPriority=32"), std::string::npos);
    const size_t looked = machine.ipc.CallCount(IpcCall::FindWindowExA);
    machine.loop.Advance(3000);
    EXPECT_EQ(machine.ipc.CallCount(IpcCall::FindWindowExA), looked) << "no tick any more";
}

TEST_F(SessionTest, QuittingIsAskedForAndEndsInOrder) {
    Begin();
    ui.Answer = [](const MsgBoxRequest&) { return MsgBoxResult::Cancel; };
    Window().btnQuit.Press();
    EXPECT_FALSE(Window().IsUnloaded());
    ui.Answer = [&](const MsgBoxRequest& box) {
        EXPECT_EQ(box.text, "           Are you sure ?\nQuitting will stop the panels.");
        EXPECT_EQ(box.title, " ORVO - Quit request");
        EXPECT_EQ(MessagesWithin(100), 10U) << "the tick goes on under the box";
        return MsgBoxResult::Ok;
    };
    Window().Left = 3000;
    Window().Top = 1500;
    Window().btnQuit.Press();
    EXPECT_TRUE(machine.loop.QuitWasCalled());
    EXPECT_EQ(Unit(1).logic, nullptr);
    const std::string options = *machine.files.Look("C:\\Orvo\\Orvo.ini");
    EXPECT_NE(options.find("MainFormTop=1500\r\nMainFormLeft=3000\r\n"), std::string::npos);
    EXPECT_EQ(machine.tray.records.back().first, 2U);
    EXPECT_EQ(machine.ipc.OpenViews(), 0U);
    EXPECT_EQ(machine.hid.OpenCount(), 1U) << "the panel ends with the window's own end";
    panel.SendReport({0, 0x28, 0, 0});
    program.reset();
    EXPECT_EQ(panel.featureReports.back(), kDark);
    EXPECT_EQ(machine.hid.OpenCount(), 0U);
    EXPECT_EQ(machine.deckhub.ReadingCount(), 0);
    EXPECT_EQ(machine.loop.TimerCount(), 0U);
}

// A press that waited while the simulator hung: its box opens in the middle of the lost session.
TEST_F(SessionTest, SimulatorThatComesBackUnderABoxOfTheLostSessionIsKept) {
    Begin();
    ui.Answer = [&](const MsgBoxRequest&) {
        machine.ipc.AnswerWith(0, 0);
        Connect();
        return MsgBoxResult::Cancel;
    };
    machine.loop.Post([&] { Window().btnQuit.Press(); });
    machine.ipc.RemoveWindows();
    machine.ipc.AnswerWith(0);
    Window().timerFSUIPC.Tick.Raise();
    ASSERT_EQ(ui.Boxes.size(), 1U);
    machine.loop.Advance(3000);
    EXPECT_TRUE(program->Session.FSConnected);
    EXPECT_TRUE(program->Session.Fsuipc.IsOpen());
    EXPECT_EQ(machine.ipc.OpenViews(), 1U);
}

TEST_F(SessionTest, AutoQuitUnderTheQuitBoxEndsOnce) {
    Begin("Splash=0\r\nAutoQuit=1\r\n");
    ui.Answer = [&](const MsgBoxRequest&) {
        LoseSimulator();
        EXPECT_TRUE(Window().IsUnloaded());
        return MsgBoxResult::Ok;
    };
    Window().btnQuit.Press();
    machine.tray.MouseActivity.Raise(515);
    EXPECT_FALSE(Window().Visible) << "a closed window stays closed";
    EXPECT_EQ(std::ranges::count_if(machine.tray.records,
                                    [](const auto& record) { return record.first == 2U; }),
              1);
    program.reset();
    EXPECT_EQ(panel.featureReports.back(), kDark);
}

TEST_F(SessionTest, EndOfTheUsersSessionLeavesNoPanelLit) {
    Begin();
    ASSERT_NE(panel.featureReports.back(), kDark);
    Window().Unload();
    for (int i = 0; i < 2; ++i) Window().SessionEnding.Raise();
    EXPECT_EQ(panel.featureReports.back(), kDark);
    EXPECT_EQ(machine.hid.OpenCount(), 0U);
    EXPECT_EQ(machine.deckhub.ReadingCount(), 0);
    const size_t sent = panel.featureReports.size();
    Multi().WriteDisplay("1", "2", uint8_t{1});
    machine.loop.Advance(1000);
    program.reset();
    EXPECT_EQ(panel.featureReports.size(), sent);
}

}  // namespace
