// What a control holds down is let go when it leaves, whatever has changed meanwhile.
#include "tests/panels/multi/MultiPanelFlight.h"

namespace {

struct HeldButtonsTest : MultiPanelFlight {
    HeldButtonsTest() { Plug(PanelKind::Switch); }

    // Selector at HDG and CRS, auto-throttle at ARM and gear lever down hold buttons 1 to 4.
    static constexpr const char* kAllHeld =
        "[MultiPanel1]\nSelectorActionHDG=VButton,64,1\nSelectorActionCRS=VButton,64,2\n"
        "AutoThrottleActionARM=VButton,64,3\n[SwitchPanel1]\nSwitchGEARDOWNOn=VButton,64,4\n"
        "SwitchGEARUPOn=None\n";

    void HoldAll() {
        FlyWith(kAllHeld), MoveSelectorTo(HDG), SetAutoThrottle(true), SwitchLogic().GearDown();
        ExpectSent(Pressed(1) + Pressed(3) + Pressed(4));
    }
    void LeaveAll(Position to) {
        MoveSelectorTo(to), SetAutoThrottle(false), SwitchLogic().GearUp();
    }
    static std::string AllReleased() { return Released(1) + Released(3) + Released(4); }
};

TEST_F(HeldButtonsTest, ComeUpWhateverTheProfileAndTheModeSayByThen) {
    const std::tuple<const char*, const char*, std::string, std::string, std::string> cases[] = {
        {"the same profile", kAllHeld, kNothing, WroteDword(kAutoThrottle, 0), kNothing},
        {"built-in behaviour", "", kNothing, WroteDword(kAutoThrottle, 0), WroteDword(0x0BE8, 0)},
        {"another button", "[MultiPanel1]\nSelectorActionIAS=VButton,64,9\n", Pressed(9),
         WroteDword(kAutoThrottle, 0), WroteDword(0x0BE8, 0)},
        {"a mode without actions", "[Common]\nSpecialMode=maddog\n", kNothing,
         SentControl(69665, 0), WroteDword(0x0BE8, 0)},
        {"the NGX", "[Common]\nSpecialMode=ngx\n", kNothing, kNothing,
         SentControl(70087, INT32_MIN)},
    };
    for (const auto& [what, profile, selector, throttle, gear] : cases) {
        HoldAll(), FlyWith(profile), MoveSelectorTo(IAS);
        EXPECT_EQ(Sent(), selector + Released(1)) << what;
        SetAutoThrottle(false);
        EXPECT_EQ(Sent(), Released(3) + throttle) << what;
        SwitchLogic().GearUp();
        EXPECT_EQ(Sent(), Released(4) + gear) << what;
        FlyWith(""), LeaveAll(None);
    }
}

TEST_F(HeldButtonsTest, SelectorThatPassesAPlaceWithoutABitLetsGo) {
    HoldAll(), MoveSelectorTo(None), ExpectSent(Released(1));
    MoveSelectorTo(CRS), ExpectSent(Pressed(2));
    MoveSelectorTo(HDG), ExpectSent(Pressed(1) + Released(2));
}

TEST_F(HeldButtonsTest, GearLeverThatIsBoundOnOneSideWorksEachTime) {
    FlyWith(kAllHeld);
    for (int time = 0; time < 3; ++time) {
        SwitchLogic().GearDown(), ExpectSent(Pressed(4));
        SwitchLogic().GearUp(), ExpectSent(Released(4));
    }
}

TEST_F(HeldButtonsTest, WhatIsLeftWhileTheSimulatorIsAwayComesUpInTheNextSession) {
    HoldAll(), LoseSimulator(), Multi().SelectorChange.Raise(0x040000, 0x080000);
    Multi().AutoThrottleChange.Raise(false), Switch().GearUp.Raise();
    device.positions = {0, 0x04, 0, 0};  // IAS
    Connect();
    for (int tick = 0; tick < 4; ++tick) Tick();
    ExpectSent(Released(3) + Released(4) + Released(1));
    EXPECT_EQ(sim.Get<uint32_t>(0x3340), 0U);
}

TEST_F(HeldButtonsTest, WhatIsLetGoOfAsTheSimulatorGoesComesUpInTheNextSession) {
    HoldAll(), SwitchLogic().GearUp(), LoseSimulator(), Connect(), Tick();
    EXPECT_EQ(sim.Get<uint32_t>(0x3340), 0x4U) << "only that of the throttle's switch is down";
}

TEST_F(HeldButtonsTest, WhatWasNeverPressedIsNotLetGoOf) {
    FlyWith("");
    Simulator<uint32_t>(0x3340, 0x10);  // by somebody else
    SwitchLogic().SPActions->SetSwitchActions(6, 1, {ActionKind::VButton, 64, 5, 0});
    machine.ipc.AnswerWith(0, 1), SwitchLogic().SwitchChange(6, true), Reconnect(), Tick();
    EXPECT_EQ(sim.Get<uint32_t>(0x3340), 0x10U);
}

TEST_F(HeldButtonsTest, ComeUpWhenTheProgramEnds) {
    HoldAll();
    ui.Answer = [](const MsgBoxRequest&) { return MsgBoxResult::Ok; };
    SwitchLogic().SPActions->SetSwitchActions(6, 1, {ActionKind::VButton, 64, 5, 0});
    SwitchLogic().SwitchChange(6, true);  // pressed for a while
    Window().btnQuit.Press();
    ExpectSent(Clicked(5) + AllReleased());
    EXPECT_EQ(machine.ipc.OpenViews(), 0U);
}

TEST_F(HeldButtonsTest, EndOfTheProgramDoesNotWaitForASimulatorThatHangs) {
    HoldAll();
    ui.Answer = [](const MsgBoxRequest&) { return MsgBoxResult::Ok; };
    machine.ipc.TimeOut(1000), TurnTrim(+1);
    const uint64_t before = machine.clock.Elapsed();
    Window().btnQuit.Press();
    EXPECT_EQ(machine.clock.Elapsed(), before);
}

}  // namespace
