// A simulator that answers late, or not at all.
#include "panels/switch/SwitchNumber.h"
#include "tests/panels/multi/MultiPanelFlight.h"

namespace {

using namespace SwitchNumber;

constexpr int32_t kStrobeControl = 69755, kGearControl = 70087, kRightClick = INT32_MIN;
constexpr uint32_t kOneTimeOutMs = 11 * 2000 + 10 * 60;

struct SlowSimulatorTest : MultiPanelFlight {
    SlowSimulatorTest() {
        for (const PanelKind kind : {PanelKind::Radio, PanelKind::Switch}) Plug(kind);
        Fly();
    }
    // The next exchange takes two seconds, and goes through then.
    void Stall() { machine.ipc.TimeOut(1); }
    void Strobe(bool on) { SwitchLogic().SwitchChange(kStrobe, on); }
};

TEST_F(SlowSimulatorTest, EventsWaitForOneTimeOutAndNotForEachOfTheirSteps) {
    RadioLogic().RPActions->ADFMode = 0;
    RadioLogic().SelectorChange(1, 5, 1), Sent();
    const std::function<void()> events[] = {
        [&] { RadioLogic().Rotary(1, 1, 1, 1); },
        [&] { TurnTrim(+1), TurnTrim(+1); },
        [&] { FlapsUp(); },
        [&] { Click(Button::AP, Button::HDG); },
        [&] {
            for (int number = kPanel; number <= kLanding; ++number)
                SwitchLogic().SwitchChange(number, true);
        },
    };
    for (const auto& act : events) {
        const uint64_t before = machine.clock.Elapsed();
        machine.ipc.TimeOut(1000), act();
        EXPECT_EQ(machine.clock.Elapsed() - before, kOneTimeOutMs);
        machine.ipc.TimeOut(0);
        for (int tick = 0; tick < 8; ++tick) Tick();
        EXPECT_TRUE(program->Session.FSConnected);
    }
    EXPECT_EQ(sim.Get<int16_t>(kTrim), 64) << "and nothing of it is lost";
    EXPECT_EQ(sim.Get<uint16_t>(0x0D0C), 0x3F);
    EXPECT_EQ(sim.Get<int32_t>(0x07BC) + sim.Get<int32_t>(0x07C8), 2);
}

TEST_F(SlowSimulatorTest, FastStepsOfAVirtualButtonLetMessagesRunAndLoseNoClick) {
    Fly("",
        "RotUpActionHDG=VButton,64,1\r\nRotDownActionHDG=VButton,64,2\r\n"
        "SelectorActionCRS=VButton,64,3\r\n");
    MoveSelectorTo(HDG), Sent();
    const auto clicks = [](int times, int button) {
        std::string text;
        for (int time = 0; time < times; ++time) text += Clicked(button);
        return text;
    };
    size_t mostExchanges = 0, last = machine.ipc.SentMessages().size();
    std::function<void()> watch = [&] {
        const size_t now = machine.ipc.SentMessages().size();
        mostExchanges = std::max(mostExchanges, now - std::exchange(last, now));
        machine.loop.After(1, watch);
    };
    watch();
    TurnKnob(+20), TurnKnob(-5), WaitMs(50);
    EXPECT_LE(mostExchanges, 4U) << "a click's two, and a tick's";
    watch = [] {};
    EXPECT_EQ(Sent(), clicks(20, 1) + clicks(5, 2) + Waited(50));
    TurnTrim(+1), machine.ipc.AnswerWith(0, 1), TurnTrim(+1), TurnKnob(+20), WaitMs(60);
    EXPECT_EQ(Sent(), WroteWord(kTrim, 32) + WroteWord(kTrim, 64) + clicks(20, 1) + Waited(60))
        << "nor behind an act that waits";
    TurnKnob(+20), MoveSelectorTo(CRS), FlapsUp(), WaitMs(60);
    ExpectSent(clicks(20, 1) + Pressed(3) + WroteWord(kFlaps, 0) + Waited(60), "nothing overtakes");
    MoveSelectorTo(HDG), Sent();
    for (const bool session : {false, true}) {
        TurnKnob(+20);
        session ? Reconnect() : Window().cmbProfiles.SetListIndex(0);
        WaitMs(50);
        const std::string sent = Sent();
        EXPECT_TRUE(sent.ends_with(Waited(50))) << "goes on with another binding: " << sent;
        EXPECT_LE(sent.size(), clicks(2, 1).size() + Waited(50).size());
    }
}

TEST_F(SlowSimulatorTest, PressForAWhileHasItsTimeAfterAReadInVainToo) {
    Fly("", "");
    SwitchLogic().SPActions->SetSwitchActions(kBat, 1, {ActionKind::VButton, 64, 5, 0});
    std::vector<uint64_t> times;
    const ScopedConnection noting =
        sim.Written.Connect([&](uint32_t offset, std::span<const uint8_t>) {
            if (offset == 0x3340) times.push_back(machine.clock.Elapsed());
        });
    for (int before = 0; before < 12; ++before) {
        times.clear();
        machine.ipc.AnswerWith(0, 1);
        for (int act = 0; act < before; ++act) TurnTrim(+1);
        SwitchLogic().SwitchChange(kBat, true);
        WaitMs(500);
        ASSERT_EQ(times.size(), 2U);
        EXPECT_GE(times[1] - times[0], 50U) << before;
        EXPECT_LE(times[1] - times[0], 70U) << before;
    }
}

TEST_F(SlowSimulatorTest, SecondClickHasItsSecondFromWhenTheFirstArrived) {
    Fly("ngx");
    std::vector<uint64_t> times;
    const ScopedConnection noting =
        sim.Written.Connect([&](uint32_t offset, std::span<const uint8_t>) {
            if (offset == 0x3110) times.push_back(machine.clock.Elapsed());
        });
    SwitchLogic().GearDown(), Stall(), WaitMs(10), WaitMs(990), Stall(), WaitMs(10), WaitMs(2000);
    ASSERT_EQ(times.size(), 2U);
    EXPECT_GE(times[1] - times[0], 1000U);
    EXPECT_LE(times[1] - times[0], 3100U);
}

TEST_F(SlowSimulatorTest, SwitchThatIsThrownBackGetsNoSecondClick) {
    Fly("ngx"), SwitchLogic().GearDown(), WaitMs(500), SwitchLogic().GearUp(), WaitMs(2000);
    ExpectSent(SentControl(kGearControl, kLeftClick) + Waited(500) +
               SentControl(kGearControl, kRightClick) + Waited(2000));
    Strobe(true), WaitMs(10), Simulator<uint8_t>(0x6500, 1), Strobe(false), WaitMs(2000);
    ExpectSent(SentControl(kStrobeControl, kRightClick) + Waited(10) + Waited(2000));
    Simulator<uint8_t>(0x6500, 0), Strobe(true), WaitMs(500), Simulator<uint8_t>(0x6500, 1);
    SwitchLogic().SwitchChange(kNav, false), WaitMs(1000);
    ExpectSent(SentControl(kStrobeControl, kRightClick) + Waited(500) +
                   SentControl(kStrobeControl, kRightClick) + Waited(1000),
               "another switch of the same control leaves it");
}

}  // namespace
