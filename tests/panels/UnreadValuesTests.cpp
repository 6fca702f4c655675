// Nothing is written that rests on a value that the simulator hasn't given.
#include "panels/radio/RadioPosition.h"
#include "panels/switch/SwitchNumber.h"
#include "tests/panels/multi/MultiPanelFlight.h"

namespace {

constexpr uint32_t kAutopilot = 0x07BC, kFlapsNotch = 0x3BFA, kStandby1 = 0x311A;
constexpr uint32_t kLightsWord = 0x0D0C, kPumps = 0x3125, kAddOnThrottle = 0x6535;

struct UnreadValuesTest : MultiPanelFlight {
    // The next exchange comes to nothing: the simulator refuses it, or doesn't answer at all.
    std::vector<std::function<void()>> failures = {[this] { machine.ipc.AnswerWith(0, 1); },
                                                   [this] { machine.ipc.TimeOut(11); }};

    UnreadValuesTest() {
        Plug(PanelKind::Switch);
        Plug(PanelKind::Radio).positions = {0, 0x81, 0, 0};  // COM1, both
        device.positions = {0, 0x08, 0, 0};                  // HDG
        Fly();
    }
    // A session begins, and no tick has read anything yet.
    void Link() {
        machine.ipc.AddWindow("UIPCMAIN");
        WaitMs(1000);
        told.clear();
    }
    void Throw(int32_t number) { SwitchLogic().SwitchChange(number, true); }
};

TEST_F(UnreadValuesTest, StepsAndTogglesAreDoneOnceTheirValueIsRead) {
    for (const auto& fail : failures) {
        Simulator<int32_t>(kAutopilot, 1), Simulator<int16_t>(kTrim, 5000);
        Simulator<int16_t>(kFlaps, 8188), Simulator<int16_t>(kFlapsNotch, 2047);
        const std::pair<std::function<void()>, std::string> acts[] = {
            {[&] { TurnTrim(+1); }, WroteWord(kTrim, 5032)},
            {[&] { FlapsUp(); }, WroteWord(kFlaps, 6141)},
            {[&] { Click(Button::AP); }, WroteDword(kAutopilot, 0)},
        };
        for (const auto& [act, sent] : acts) {
            fail(), act();
            EXPECT_EQ(Sent() + Sent(), sent);
        }
    }
}

TEST_F(UnreadValuesTest, ActsThatWaitKeepTheirOrderAndEndWithTheSession) {
    failures[0]();
    TurnTrim(+1), TurnTrim(-3), Click(Button::HDG), Tick(), Tick(), Tick();
    ExpectSent(WroteWord(kTrim, 32) + WroteWord(kTrim, -64) + WroteDword(0x07C8, 1));
    failures[0]();
    TurnTrim(+1), Reconnect(), ExpectSent(kNothing);
}

TEST_F(UnreadValuesTest, KnobsStartFromTheFirstTickOfSessionBindingAndMode) {
    Simulator(kHeading, 32768), Simulator(kStandby1, 0x3200);
    const auto turnBoth = [&] { TurnKnob(+1), RadioLogic().Rotary(1, 1, 1, 1); };
    const std::pair<const char*, std::function<void()>> beginnings[] = {
        {"session", [&] { LoseSimulator(), Link(); }},
        {"binding", [&] { Window().cmbProfiles.SetListIndex(0); }},
        {"mode",
         [&] {
             Fly("ngx");
             PutProfile("Default", "");
             Window().cmbProfiles.SetListIndex(0);
         }},
    };
    for (const auto& [what, begin] : beginnings) {
        Simulator(kHeading, 32768), Simulator(kStandby1, 0x2200), begin();
        Simulator(kHeading, 16384), Simulator(kStandby1, 0x2300), turnBoth();
        EXPECT_EQ(told, kNothing) << what;
        Simulator(kHeading, 0), Simulator(kStandby1, 0x2600);
        EXPECT_EQ(Sent() + Sent(), WroteWord(kHeading, 182) + WroteWord(kStandby1, 0x2700)) << what;
    }
}

TEST_F(UnreadValuesTest, TickWhoseReplyEndsEarlyHasReadNothing) {
    LoseSimulator(), Link(), Simulator(kHeading, 16384);
    machine.ipc.AfterServing([](std::span<uint8_t> block) { std::ranges::fill(block, 0); });
    Tick();
    machine.ipc.AfterServing({});
    TurnKnob(+1);
    EXPECT_EQ(Sent() + Sent(), WroteWord(kHeading, 16566));
}

TEST_F(UnreadValuesTest, SwitchesThatNeedAValueAskForItBeforeTheFirstTick) {
    SwitchLogic().SPActions->SingleFuelPump = true;
    Simulator<uint8_t>(kPumps, 0x0C), LoseSimulator();
    Link(), Throw(SwitchNumber::kFuelPump), ExpectSent(WroteByte(kPumps, 0x0D));
    Fly("ngx"), Simulator<uint8_t>(kAddOnThrottle, 1);
    Window().cmbProfiles.SetListIndex(0);
    SetAutoThrottle(true), ExpectSent(kNothing, "the add-on's switch stands there already");
    SetAutoThrottle(false), ExpectSent(SentControl(70012, kLeftClick));
    Fly("maddog"), Simulator<int32_t>(kAutopilot, 1);
    Window().cmbProfiles.SetListIndex(0);
    Click(Button::AP), ExpectSent(SentControl(69666, 0));
}

// What was meant for one aircraft isn't done to another.
TEST_F(UnreadValuesTest, ActsThatWaitEndWithTheirBindings) {
    failures[0]();
    Click(Button::AP), SetAutoThrottle(true);
    Fly("ngx");
    ExpectSent(kNothing);
    Simulator<uint8_t>(kAddOnThrottle, 1);
    failures[0]();
    Window().cmbProfiles.SetListIndex(0);
    SetAutoThrottle(false);
    PutProfile("Default", "");
    Window().cmbProfiles.SetListIndex(0);
    EXPECT_EQ(Sent() + Sent(), kNothing);
    failures[0]();
    Click(Button::AP), PutProfile("Default", "[MultiPanel1]\r\nButtonActionAP=None\r\n");
    Multi().SetupRequest.Raise(), Tick(), ExpectSent(kNothing, "a window changed the bindings");
}

TEST_F(UnreadValuesTest, WhatComesBehindAKnobThatWaitsIsDoneBehindIt) {
    Simulator(kStandby1, 0x2200);
    Window().cmbProfiles.SetListIndex(0);
    RadioLogic().Rotary(1, 1, 1, 1), Radio().ButtonClick.Raise(0x4000);
    Tick(), ExpectSent(WroteWord(kStandby1, 0x2300) + WroteByte(0x3123, 8));
}

TEST_F(UnreadValuesTest, FuelPumpsOfAnotherBindingAreReadAnew) {
    SwitchLogic().SPActions->SingleFuelPump = true;
    Simulator<uint8_t>(kPumps, 0x0C);
    SwitchLogic().SetupChanged();
    Throw(SwitchNumber::kFuelPump), ExpectSent(WroteByte(kPumps, 0x0D));
}

TEST_F(UnreadValuesTest, FirstReportWithEverythingOnArrivesWholeAfterAReadInVain) {
    const auto everything = [this] {
        std::map<uint32_t, int> writes;
        const ScopedConnection counting = sim.Written.Connect(
            [&](uint32_t offset, std::span<const uint8_t>) { ++writes[offset]; });
        machine.bus.Find("SwitchPanel1")->SendReport({0x00, 0xFF, 0x5F, 0x08});
        for (int tick = 0; tick < 8; ++tick) Tick();
        return writes;
    };
    const auto writes = everything();
    const int word = sim.Get<uint16_t>(kLightsWord);
    EXPECT_EQ(word, 0x3F);
    for (const auto& fail : failures) {
        machine.bus.Find("SwitchPanel1")->SendReport({0x00, 0x00, 0x20, 0x04});
        Sent(), fail();
        EXPECT_EQ(everything().size(), writes.size());
        EXPECT_EQ(sim.Get<uint16_t>(kLightsWord), word);
    }
}

TEST_F(UnreadValuesTest, OthersVirtualButtonsStayDown) {
    Fly("", "ButtonActionAP=VButton,64,1\r\nSelectorActionHDG=VButton,64,2\r\n");
    for (const auto& fail : failures) {
        Simulator<uint32_t>(0x3340, 0xF0), fail(), MoveSelectorTo(HDG), Click(Button::AP);
        for (int tick = 0; tick < 4; ++tick) Tick();
        ExpectSent(Pressed(2) + Clicked(1));
        fail(), MoveSelectorTo(None);
        EXPECT_EQ(Sent() + Sent(), Released(2));
        EXPECT_EQ(sim.Get<uint32_t>(0x3340), 0xF0U);
    }
}

}  // namespace
