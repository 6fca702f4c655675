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

TEST_F(SlowSimulatorTest, FastStepOfAVirtualButtonLetsMessagesRun) {
    Fly("", "RotUpActionHDG=VButton,64,1\r\n"), MoveSelectorTo(HDG), Sent();
    machine.ipc.ForgetSentMessages();
    size_t mostExchanges = 0, last = 0;
    std::function<void()> watch = [&] {
        const size_t now = machine.ipc.SentMessages().size();
        mostExchanges = std::max(mostExchanges, now - std::exchange(last, now));
        machine.loop.Post(watch);
    };
    machine.loop.Post(watch);
    TurnKnob(+20);
    EXPECT_LE(mostExchanges, 3U);
    EXPECT_EQ(last, 38U);
    std::string sent;
    for (int time = 0; time < 20; ++time) sent += Clicked(1);
    watch = [] {};
    ExpectSent(sent);
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
