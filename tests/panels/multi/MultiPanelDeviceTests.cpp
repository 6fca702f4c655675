#include "panels/multi/ctlMultiPanel.h"
#include "tests/panels/DeviceTest.h"

namespace {

constexpr Color kRed = 0x0000FF, kYellow = 0x00FFFF, kWhite = 0xFFFFFF;

// The bits of the state word, as the panel sends them.
namespace Button {
constexpr int32_t kAP = 0x800000, kHDG = 0x000100, kVS = 0x001000, kREV = 0x004000;
}
namespace Position {
constexpr int32_t kNone = 0, kALT = 0x010000, kIAS = 0x040000, kHDG = 0x080000, kCRS = 0x100000;
}
constexpr int32_t kKnobRight = 0x200000, kKnobLeft = 0x400000;  // pulses
constexpr int32_t kTrimUp = 0x000008, kTrimDown = 0x000004;     // pulses
constexpr int32_t kFlapsUp = 0x000001, kFlapsDown = 0x000002;
constexpr int32_t kArm = 0x008000;
constexpr int32_t kAtRest = 0;

// What is heard of the panel: steps by their speed, the selector by its new and old position.
constexpr Happening Click{"Click"}, LongClick{"LongClick"}, KnobRight{"KnobRight"},
    KnobLeft{"KnobLeft"}, TrimUp{"TrimUp"}, TrimDown{"TrimDown"}, FlapsUp{"FlapsUp"},
    FlapsDown{"FlapsDown"}, Armed{"Armed"}, Selector{"Selector"};

struct MultiPanelDeviceTest : DeviceTest<ctlMultiPanel, PanelKind::Multi> {
    MultiPanelDeviceTest() {
        Listen(panel->ButtonClick, Click);
        Listen(panel->ButtonLongClick, LongClick);
        Listen(panel->RotaryUp, KnobRight);
        Listen(panel->RotaryDown, KnobLeft);
        Listen(panel->TrimUp, TrimUp);
        Listen(panel->TrimDown, TrimDown);
        Listen(panel->FlapsUp, FlapsUp);
        Listen(panel->FlapsDown, FlapsDown);
        Listen(panel->AutoThrottleChange, Armed);
        Listen(panel->SelectorChange, Selector);
        PlugIn();
        device.SendReport({0x77, 0, 0, 0});  // the first byte says nothing
        device.SendReport({0, 0x08, 0});     // too short
        machine.loop.RunPending();
        ExpectHeard(Selector(Position::kNone, Position::kNone) + Armed(false));
    }
    void Pulse(int32_t bit, int times = 1) {
        for (int i = 0; i < times; ++i) Send(bit, kAtRest);
    }
    Color ButtonColor(size_t row) { return panel->OnScreen.shpButton[row]->FillColor; }
};

TEST_F(MultiPanelDeviceTest, TwoPulsesMakeAStep) {
    Pulse(kKnobRight), ExpectHeard(kNothing);
    WaitMs(5000), Pulse(kKnobRight), ExpectHeard(KnobRight(1), "after any pause");
    WaitMs(300), Pulse(kKnobLeft), WaitMs(300), Pulse(kKnobRight);
    ExpectHeard(kNothing, "each direction has its own pair");
    WaitMs(300), Pulse(kKnobLeft), ExpectHeard(KnobLeft(1));
    WaitMs(1000), Send(kTrimUp), WaitMs(249), Send(kAtRest, kTrimUp), WaitMs(250), Send(kAtRest);
    ExpectHeard(kNothing, "released too late");
    Pulse(kTrimUp), ExpectHeard(TrimUp(1));
}

TEST_F(MultiPanelDeviceTest, SpeedFollowsThePulsesOfAPeriod) {
    const struct {
        int32_t bit;
        int pulses;
        Happening step;
        int speed;
    } cases[] = {
        {kKnobRight, 10, KnobRight, 1},  {kKnobRight, 11, KnobRight, 5},
        {kKnobRight, 14, KnobRight, 10}, {kKnobRight, 17, KnobRight, 20},
        {kTrimDown, 5, TrimDown, 1},     {kTrimDown, 6, TrimDown, 5},
        {kTrimDown, 10, TrimDown, 10},   {kTrimDown, 13, TrimDown, 20},
    };
    for (const auto& test : cases) {
        SCOPED_TRACE(test.pulses);
        WaitMs(1000), Pulse(test.bit, test.pulses), WaitMs(200), Heard(), Pulse(test.bit, 2);
        EXPECT_TRUE(Heard().starts_with(test.step(test.speed)));
        WaitMs(200), Pulse(test.bit, 2);
        EXPECT_TRUE(Heard().starts_with(test.step(test.speed))) << "a few pulses keep the speed";
        if (test.pulses % 2 != 0) Pulse(test.bit);
    }
    WaitMs(1000);
    EXPECT_EQ(panel->OnScreen.labSpeed.Caption.Get(), "1");
}

TEST_F(MultiPanelDeviceTest, AccelerationSetsThePeriod) {
    panel->RotAcceleration(50);  // 200 ms
    panel->TrimAcceleration(0);
    Pulse(kKnobRight, 20), Heard();
    WaitMs(199), Pulse(kKnobRight, 2), WaitMs(1), Pulse(kKnobRight, 2);
    ExpectHeard(KnobRight(1) + KnobRight(20));
    WaitMs(1000), Pulse(kTrimUp, 20), WaitMs(1000), Heard();
    Pulse(kTrimUp, 2), ExpectHeard(TrimUp(1), "no sampling");
}

TEST_F(MultiPanelDeviceTest, ClicksAndLongClicksAtTheThreshold) {
    setup.ClickThreshold = 500;
    Send(Button::kHDG);
    EXPECT_EQ(ButtonColor(1), kRed);
    WaitMs(499), Send(kAtRest), WaitMs(1000), ExpectHeard(Click(Button::kHDG));
    EXPECT_EQ(ButtonColor(1), kWhite);
    Send(Button::kREV), WaitMs(2000), Send(kAtRest), WaitMs(1000);
    ExpectHeard(LongClick(Button::kREV));
    setup.ClickThreshold = 100;
    Send(Button::kHDG), WaitMs(150);
    ExpectHeard(LongClick(Button::kHDG), "the option counts at once");
}

TEST_F(MultiPanelDeviceTest, LeversAndSelector) {
    Send(kFlapsUp | kArm | Position::kHDG);
    ExpectHeard(Selector(Position::kHDG, Position::kNone) + FlapsUp() + Armed(true));
    EXPECT_EQ(panel->OnScreen.shpFlapsLever.Top, 780);
    EXPECT_EQ(panel->OnScreen.shpATLever.Left, 8580);
    EXPECT_EQ(panel->OnScreen.labUpperMode.Caption.Get(), "HDG");
    Send(kFlapsDown | Position::kALT);
    ExpectHeard(Selector(Position::kALT, Position::kHDG) + FlapsDown() + Armed(false));
    EXPECT_EQ(panel->OnScreen.shpFlapsLever.Top, 1140);
    EXPECT_EQ(panel->OnScreen.labLowerMode.Caption.Get(), " VS");
    Send(kAtRest), ExpectHeard(Selector(Position::kNone, Position::kALT));
    EXPECT_EQ(panel->OnScreen.shpFlapsLever.Top, 960);
    EXPECT_EQ(panel->OnScreen.labLowerMode.Caption.Get(), " VS") << "no position keeps the labels";
}

TEST_F(MultiPanelDeviceTest, PointersAndTrimBarGoRound) {
    auto& screen = panel->OnScreen;
    Send(Position::kIAS);
    EXPECT_EQ(screen.SelectorSign.X2, 840 - 483);
    EXPECT_EQ(screen.SelectorSign.Y2, 1020 - 129);
    Pulse(kKnobRight, 2 * 6);
    EXPECT_EQ(screen.RotarySign.X2, 7110 + 500) << "90 degrees";
    WaitMs(300), Pulse(kKnobLeft, 2 * 12);
    EXPECT_EQ(screen.RotarySign.X2, 7110 - 500);
    const int32_t start = screen.lineTrim.Y1;
    Pulse(kTrimUp, 2 * 8);
    EXPECT_EQ(screen.lineTrim.Y1, 2340);
    WaitMs(300), Pulse(kTrimDown, 2 * 8);
    EXPECT_EQ(screen.lineTrim.Y2, start);
}

TEST_F(MultiPanelDeviceTest, TextsAreEncodedRightAligned) {
    const std::pair<const char*, std::array<uint8_t, 5>> cases[] = {
        {"-1200", {0x0E, 1, 2, 0, 0}}, {"350", {10, 10, 3, 5, 0}},  {"0.780", {0, 10, 7, 8, 0}},
        {"", {10, 10, 10, 10, 10}},    {"-00100", {0, 0, 1, 0, 0}}, {"0 x,9", {0, 10, 10, 10, 9}},
    };
    for (const auto& [text, bytes] : cases) {
        std::array<uint8_t, 5> digits{};
        EncodeDisplay(text, digits);
        EXPECT_EQ(digits, bytes) << text;
    }
}

TEST_F(MultiPanelDeviceTest, OnlyChangesAreSentUnlessForcedOrDark) {
    device.featureReports.clear();
    panel->WriteDisplay("350", "-700", uint8_t{0x81});
    panel->WriteDisplay("350", "-700", uint8_t{0x81}), panel->WriteDisplay();
    const Report shown = {
        0x00,                 // report id
        0x0A, 0x0A, 3, 5, 0,  // blank, blank, 350
        0x0A, 0x0E, 7, 0, 0,  // blank, -700
        0x81,                 // AP and REV
        0x00,
    };
    EXPECT_EQ(device.featureReports, Reports{shown});
    panel->WriteDisplay({}, {}, {}, true), panel->TurnOffDisplay(), panel->TurnOffDisplay();
    Report dark(shown.size(), 0x0F);                      // no segment
    for (const size_t at : {0, 11, 12}) dark[at] = 0x00;  // and no light
    EXPECT_EQ(device.featureReports, (Reports{shown, shown, dark, dark}));
    EXPECT_EQ(panel->OnScreen.labUpperValue.Caption.Get(), "350") << "the labels stay";
    panel->WriteDisplay("350", "-700", uint8_t{0x81});
    EXPECT_EQ(device.featureReports.back(), shown) << "the same texts bring it back";
}

TEST_F(MultiPanelDeviceTest, HeldButtonStaysRedUntilItsRelease) {
    Send(Button::kAP), panel->WriteDisplay({}, {}, uint8_t{0x03});
    EXPECT_EQ(ButtonColor(0), kRed);
    EXPECT_EQ(ButtonColor(1), kYellow);
    Send(kAtRest);
    EXPECT_EQ(ButtonColor(0), kYellow);
    panel->WriteDisplay({}, {}, uint8_t{0});
    EXPECT_EQ(ButtonColor(0), kWhite);
}

TEST_F(MultiPanelDeviceTest, PositionsAreReadFromTheDevice) {
    device.positions = {0, 0x10, 0, 0};
    panel->GetPositions(), ExpectHeard(Selector(Position::kCRS, Position::kNone));
    machine.hid.Refuse(HidCall::GetFeature, 1);
    panel->GetPositions();
    ExpectHeard(Selector(Position::kNone, Position::kNone), "nothing read is no position");
    Send(kAtRest), ExpectHeard(kNothing, "the last report is still what reports are compared with");
}

TEST_F(MultiPanelDeviceTest, SplashLetsReportsIn) {
    device.featureReports.clear();
    machine.loop.After(150, [this] { device.SendReport({0, 0x08, 0, 0}); });
    panel->Splash(), ExpectHeard(Selector(Position::kHDG, Position::kNone));
    ASSERT_GE(device.featureReports.size(), 12U);
    const Report second = {
        0x00,                          // report id
        0x0A, 0x0A, 0x0A, 0,    0x0A,  // a zero on its way to the left
        0x0A, 0x0A, 0x0A, 0x0A, 0x0A,  // blank
        0x01,                          // AP
        0x00,
    };
    EXPECT_EQ(device.featureReports[1], second);
    EXPECT_EQ(machine.clock.Elapsed(), 1000U);
}

TEST_F(MultiPanelDeviceTest, EndTurnsOffStopsAndCloses) {
    device.SendReport({0, 0x08, 0, 0});
    panel.reset();
    EXPECT_EQ(device.featureReports.back()[1], 15);
    EXPECT_EQ(machine.deckhub.ReadingCount(), 0);
    EXPECT_EQ(machine.hid.OpenCount(), 0U);
    EXPECT_EQ(machine.loop.TimerCount(), 0U);
    ExpectHeard(Selector(Position::kHDG, Position::kNone), "what had come in was still taken");
}

// As when the simulator answers late: reports wait, and all come at once.
TEST_F(MultiPanelDeviceTest, SpeedIsThatOfTheHandHoweverLateTheLoopIs) {
    panel->RotAcceleration(50);  // 200 ms
    const auto turnWhileItIsBusy = [this](int pulses, uint32_t eachMs) {
        WaitMs(2000);
        for (int pulse = 0; pulse < pulses; ++pulse)
            for (const int32_t state : {kKnobRight, kAtRest})
                Post(state), machine.clock.Sleep(eachMs / 2);
        WaitMs(1);
        return Heard();
    };
    std::string calm;
    for (int step = 0; step < 12; ++step) calm += KnobRight(1);
    EXPECT_EQ(turnWhileItIsBusy(24, 20), calm);
    const std::string fast = turnWhileItIsBusy(120, 6);
    EXPECT_TRUE(fast.starts_with(KnobRight(1)) && fast.ends_with(KnobRight(20))) << fast;
    WaitMs(1000);
    EXPECT_EQ(panel->OnScreen.labSpeed.Caption.Get(), "1");
}

// The press of the first report is told before the release of the second, and makes a click.
TEST_F(MultiPanelDeviceTest, RestOfAReportComesBeforeTheNextOne) {
    panel->SelectorChange.Connect([this](int32_t now, int32_t) {
        if (now != Position::kHDG) return;
        machine.loop.After(200, [this] { Post(Position::kCRS); });
        machine.loop.After(1500, [this] { Post(Position::kIAS); });
        WaitMs(3000);
    });
    Send(Position::kHDG | Button::kAP | kArm);
    ExpectHeard(Selector(Position::kHDG, Position::kNone) + Armed(true) +
                Selector(Position::kCRS, Position::kHDG) + Click(Button::kAP) + Armed(false) +
                Selector(Position::kIAS, Position::kCRS));
}

}  // namespace
