#include "panels/radio/ctlRadioPanel.h"
#include "tests/panels/DeviceTest.h"

namespace {

// The bits of the state word, as the panel sends them. 1 is the upper row, 2 the lower one.
constexpr int32_t kButton1 = 0x4000, kButton2 = 0x8000;
constexpr int32_t kCOM1Of1 = 0x010000, kCOM2Of1 = 0x020000, kNAV1Of1 = 0x040000;
constexpr int32_t kCOM1Of2 = 0x800000, kCOM2Of2 = 0x000100;
// Pulses of the knobs' rings, clockwise and counter-clockwise.
constexpr int32_t kInner1Right = 0x01, kInner1Left = 0x02, kOuter1Right = 0x04, kOuter1Left = 0x08;
constexpr int32_t kInner2Right = 0x10, kInner2Left = 0x20, kOuter2Right = 0x40, kOuter2Left = 0x80;
constexpr int32_t kAtRest = 0;

enum Ring : int32_t { Inner1, Outer1, Inner2, Outer2 };

constexpr Happening Down{"Down"}, Up{"Up"}, Click{"Click"}, LongClick{"LongClick"};  // button
constexpr Happening Right{"Right"}, Left{"Left"};  // ring and speed
constexpr Happening Selector{"Selector"};          // row, new and old position

struct RadioPanelDeviceTest : DeviceTest<ctlRadioPanel, PanelKind::Radio> {
    RadioPanelPicture::Side &upper = panel->OnScreen.At(1), &lower = panel->OnScreen.At(2);
    Report dark = Report(23, 0xFF);

    RadioPanelDeviceTest() {
        dark[0] = 0x00;  // report id
        Listen(panel->ButtonDown, Down);
        Listen(panel->ButtonUp, Up);
        Listen(panel->ButtonClick, Click);
        Listen(panel->ButtonLongClick, LongClick);
        Listen(panel->RotaryUp, Right);
        Listen(panel->RotaryDown, Left);
        Listen(panel->SelectorChange, Selector);
        setup.ClickThreshold = 510;
        PlugIn();
        Send(kAtRest), ExpectHeard(Selector(1, 0, 0) + Selector(2, 0, 0));
    }
    // Pulses of these rings come and go, all before the first is handled.
    void Turn(int32_t bits, int pulses = 1) {
        std::vector<int32_t> states;
        for (int i = 0; i < pulses; ++i) states.insert(states.end(), {bits, kAtRest});
        SendAtOnce(states);
    }
    std::string ShownSpeeds() {
        return upper.labSpeed.Caption.Get() + "/" + lower.labSpeed.Caption.Get();
    }
};

TEST_F(RadioPanelDeviceTest, SelectorsAreToldAndShownAndReadFromTheDevice) {
    constexpr Happening Needles{"Needles"};  // right in the upper row, down in the lower one
    panel->SelectorChange.Connect([this, Needles](int row, int, int) {
        const Line &line1 = upper.lineSelector, &line2 = lower.lineSelector;
        if (row == 2) told += Needles(line1.X2 - 1080, line2.Y2 - line2.Y1);
    });
    Send(kCOM1Of1), ExpectHeard(Selector(1, kCOM1Of1, 0));
    const struct {
        int32_t upper, lower;
        int right, down;
    } moves[] = {{0x020000, 0x000100, -246, -315}, {0x040000, 0x000200, -378, -130},
                 {0x080000, 0x000400, -380, 124},  {0x100000, 0x000800, -302, 262},
                 {0x200000, 0x001000, -150, 371},  {0x400000, 0x002000, 104, 386}};
    int32_t before1 = kCOM1Of1, before2 = 0;
    for (const auto& to : moves) {
        Send(to.upper | to.lower);
        ExpectHeard(Selector(1, to.upper, std::exchange(before1, to.upper)) +
                    Selector(2, to.lower, std::exchange(before2, to.lower)) +
                    Needles(to.right, to.down));
    }
    device.positions = {0x01, 0x81, 0xC0, 0xFF};
    machine.hid.Refuse(HidCall::GetFeature, 1);
    panel->GetPositions(), ExpectHeard(Selector(1, 0, 0) + Selector(2, 0, 0) + Needles(0, -400));
    panel->GetPositions();
    ExpectHeard(Selector(1, kCOM1Of1, 0) + Selector(2, kCOM1Of2, 0) + Needles(0, -400));
    Send(0x002000), ExpectHeard(Selector(1, 0, 0x400000), "compared with the report before");
}

TEST_F(RadioPanelDeviceTest, DisplaysShowTheEndsOfTextsAndOnlyChangesAreSent) {
    // 0xFF is dark, 0xD0 a point with the digit, 0xDF one alone.
    struct Display {
        std::string text;
        std::array<uint8_t, 5> digits;
    };
    const Display cases[][4] = {{{"118.02", {0x01, 0x01, 0xD8, 0x00, 0x02}},
                                 {"12.", {0xFF, 0xFF, 0xFF, 0x01, 0xD2}},
                                 {" . . .", {0xFF, 0xFF, 0xDF, 0xDF, 0xDF}},
                                 {"1 123", {0x01, 0xFF, 0x01, 0x02, 0x03}}},
                                {{"1234567", {0x03, 0x04, 0x05, 0x06, 0x07}},
                                 {"", {0xFF, 0xFF, 0xFF, 0xFF, 0xFF}},
                                 {".", {0xFF, 0xFF, 0xFF, 0xFF, 0xFF}},
                                 {"0345,3", {0x00, 0x03, 0x04, 0xD5, 0x03}}},
                                {{"-9.x", {0xFF, 0xFF, 0xFF, 0xD9, 0xFF}},
                                 {"1.23456", {0x02, 0x03, 0x04, 0x05, 0x06}},
                                 {".6..7", {0xFF, 0xFF, 0xFF, 0xD6, 0x07}},
                                 {"8,9:/", {0xFF, 0xD8, 0x09, 0xFF, 0xFF}}}};
    for (const auto& [active1, standby1, active2, standby2] : cases) {
        panel->WriteDisplay(active1.text, standby1.text, active2.text, standby2.text);
        Report report = {0x00};
        for (const auto& display : {active1, standby1, active2, standby2})
            report.insert(report.end(), display.digits.begin(), display.digits.end());
        report.insert(report.end(), {0x00, 0x00});
        EXPECT_EQ(Written(), Reports{report}) << active1.text;
    }
    EXPECT_EQ(upper.labActive.Caption.Get(), "-9.x");
    EXPECT_EQ(lower.labStandby.Caption.Get(), "8.9:/");
    for (int time = 0; time < 3; ++time, panel->TurnOffDisplay())
        panel->WriteDisplay({}, "1.23456", {}, "8,9:/");
    panel->TurnOffDisplay();
    const Report again = {
        0x00,                          // report id
        0xFF, 0xFF, 0xFF, 0xFF, 0xFF,  // dark, as it was turned off
        0x02, 0x03, 0x04, 0x05, 0x06,  // 1.23456
        0xFF, 0xFF, 0xFF, 0xFF, 0xFF,  // dark
        0xFF, 0xD8, 0x09, 0xFF, 0xFF,  // 8.9
        0xFF, 0xFF,                    // as dark leaves them
    };
    EXPECT_EQ(Written(), (Reports{dark, again, dark, again, dark, dark}));
    EXPECT_EQ(upper.labActive.Caption.Get(), "");
    EXPECT_EQ(lower.labStandby.Caption.Get(), "");
}

TEST_F(RadioPanelDeviceTest, SplashLetsAZeroRunRoundAndTheEndIsDark) {
    uint64_t letIn = 0;
    machine.loop.After(1, [&] { letIn = machine.clock.Elapsed(); });
    panel->Splash();
    EXPECT_EQ(letIn, 30U) << "pending messages run";
    Reports wanted;
    for (size_t at : {10, 9, 8, 7, 6, 5, 4, 3, 2, 1, 11, 12, 13, 14, 15, 16, 17, 18, 19, 20}) {
        wanted.push_back(dark);
        for (const size_t zero : {at, size_t{21}, size_t{22}}) wanted.back()[zero] = 0x00;
    }
    wanted.push_back(dark);
    EXPECT_EQ(Written(), wanted);
    EXPECT_EQ(machine.clock.Elapsed(), 1200U);
    panel.reset();
    EXPECT_EQ(Written(), Reports{dark}) << "the end of a panel";
}

TEST_F(RadioPanelDeviceTest, TwoPulsesMakeAStepAndTurnTheRing) {
    const auto all = [this] {
        for (const int32_t rings : {kInner1Right | kOuter1Right, kInner1Left | kOuter1Left,
                                    kInner2Right | kOuter2Right, kInner2Left | kOuter2Left})
            WaitMs(200), Turn(rings);
    };
    all();
    WaitMs(5000), ExpectHeard(kNothing);
    all();
    ExpectHeard(Right(Inner1, 1) + Right(Outer1, 1) + Left(Inner1, 1) + Left(Outer1, 1) +
                Right(Inner2, 1) + Right(Outer2, 1) + Left(Inner2, 1) + Left(Outer2, 1));
    WaitMs(200), Turn(0xFF, 2);
    ExpectHeard(Right(Inner1, 1) + Left(Inner1, 1) + Right(Outer1, 1) + Left(Outer1, 1) +
                Right(Inner2, 1) + Left(Inner2, 1) + Right(Outer2, 1) + Left(Outer2, 1));
    WaitMs(200), Send(kInner1Right), WaitMs(199), Send(kAtRest, kInner1Right);
    WaitMs(200), Send(kAtRest), ExpectHeard(kNothing, "the second comes off too late");
    Turn(kInner1Right), WaitMs(200);
    Send(kOuter1Right, kOuter1Left, kButton1), WaitMs(200), Send(kAtRest);
    ExpectHeard(Right(Inner1, 1) + Right(Outer1, 1) + Down(kButton1) + Click(kButton1) +
                Up(kButton1));
    for (int step = 0; step < 5; ++step) Turn(kInner1Right | kOuter2Left, 2);
    EXPECT_EQ(upper.lineInnRot.X2, 8430);
    EXPECT_EQ(lower.lineOutRot.X1, 7958);
    EXPECT_EQ(lower.lineOutRot.Y2, 2080);
}

TEST_F(RadioPanelDeviceTest, SpeedsFollowThePulsesOfEachSide) {
    for (uint8_t row = 0; row < 4; ++row) panel->SetAcceleration(row, row == 2 ? 200 : 250);
    const struct {
        std::vector<int32_t> states;  // at once; the upper row's pulses are 0x0F, the lower's 0xF0
        const char* shown;            // when both periods are over
        int upper, lower;             // speed of a step in the next ones
    } cases[] = {
        {{0xFF, 0xFF, 0xF3, 0xF0, 0x10, 0x00}, "1/20", 1, 20},
        {{0xFF, 0xFF, 0xF7, 0xF0, 0x00}, "1/10", 5, 10},
        {{0xFF, 0xFF, 0xFF, 0x31, 0x00}, "1/10", 5, 10},
        {{0xFF, 0xFF, 0xFF, 0x13, 0x00}, "1/5", 10, 5},
        {{0xFF, 0xFF, 0x7F, 0x0F, 0x00}, "1/5", 10, 5},
        {{0xFF, 0xFF, 0x3F, 0x0F, 0x01, 0x00}, "1/1", 20, 1},
    };
    for (const auto& test : cases) {
        WaitMs(2400), SendAtOnce(test.states), WaitMs(650), Heard();
        EXPECT_EQ(ShownSpeeds(), test.shown);
        WaitMs(150), Turn(kOuter1Right, 2), WaitMs(250), Turn(kOuter2Right, 2);
        EXPECT_EQ(Heard(), Right(Outer1, test.upper) + Right(Outer2, test.lower)) << test.shown;
    }
    WaitMs(550), Turn(kOuter1Right, 2), ExpectHeard(Right(Outer1, 20), "a few pulses keep it");
    WaitMs(1599);
    EXPECT_EQ(ShownSpeeds(), "20/1");
    WaitMs(1);
    EXPECT_EQ(ShownSpeeds(), "1/1");
}

TEST_F(RadioPanelDeviceTest, ClicksAndLongClicksAtTheThreshold) {
    Send(kButton1), WaitMs(509), Send(kAtRest), WaitMs(600);
    ExpectHeard(Down(kButton1) + Click(kButton1) + Up(kButton1));
    Send(kButton2), WaitMs(510), Send(kAtRest), ExpectHeard(Down(kButton2) + Up(kButton2));
    WaitMs(15), ExpectHeard(LongClick(kButton2) + Up(kButton2));
    Send(kButton1), WaitMs(515), Send(kAtRest), WaitMs(10);
    ExpectHeard(Down(kButton1) + Up(kButton1) + LongClick(kButton1) + Up(kButton1));
    const int32_t both = kButton1 | kButton2;
    Send(kButton1), WaitMs(400), Send(both), WaitMs(400), Send(kButton2), WaitMs(1000);
    Send(kAtRest);
    ExpectHeard(Down(kButton1) + Down(kButton2) + Click(kButton1) + Up(kButton1) + Up(kButton2));
    Send(kButton1), WaitMs(400), Send(both), WaitMs(525), Send(kButton2);
    ExpectHeard(Down(kButton1) + Down(kButton2) + LongClick(kButton2) + Up(kButton1));
    EXPECT_EQ(upper.shpSwitch.FillColor, 0xFFFFFFU);
    EXPECT_EQ(lower.shpSwitch.FillColor, 0x0000FFU);
}

// As when the simulator answers late: what counts is when a report came, not when it is taken.
TEST_F(RadioPanelDeviceTest, ABusyMomentLosesNoPulseAndMakesNoClickALongOne) {
    const auto releaseWhileBusy = [this] {
        machine.clock.Sleep(50), Post(kAtRest), machine.clock.Sleep(600);
    };
    Turn(kInner1Right), Send(kInner1Right), WaitMs(100);
    Heard();
    releaseWhileBusy();
    WaitMs(1), ExpectHeard(Right(Inner1, 1));
    WaitMs(2000), Send(kButton1), WaitMs(100), ExpectHeard(Down(kButton1));
    releaseWhileBusy();
    WaitMs(2000), Send(kButton1), WaitMs(610);
    ExpectHeard(Click(kButton1) + Up(kButton1) + Down(kButton1) + LongClick(kButton1));
    Send(kAtRest, kButton2), Heard();
    for (int time = 0; time < 5; ++time, machine.loop.RunPending()) machine.clock.Sleep(150);
    ExpectHeard(LongClick(kButton2), "also where the loop is always late");
}

// As an action that sends a keystroke lets in what waits.
TEST_F(RadioPanelDeviceTest, ReportsThatComeWithinAnEventAreTakenOnce) {
    const auto letRun = [this](auto...) { machine.loop.Advance(600); };
    panel->SelectorChange.Connect(letRun);
    panel->RotaryUp.Connect(letRun);
    panel->ButtonClick.Connect(letRun);
    const int32_t rest = kNAV1Of1 | kCOM2Of2;
    SendAtOnce({kCOM1Of1 | kCOM2Of2, kCOM2Of1 | kCOM2Of2, rest});
    ExpectHeard(Selector(1, kCOM1Of1, 0) + Selector(2, kCOM2Of2, 0) +
                Selector(1, kCOM2Of1, kCOM1Of1) + Selector(1, kNAV1Of1, kCOM2Of1));
    const int32_t pulse = rest | kInner1Right, pressed = rest | kButton1;
    SendAtOnce({pulse, rest, pulse, rest, pulse, rest, pulse, rest});
    ExpectHeard(Right(Inner1, 1) + Right(Inner1, 1));
    SendAtOnce({pressed, rest, pressed}), WaitMs(2000);
    ExpectHeard(Down(kButton1) + Click(kButton1) + Up(kButton1) + Down(kButton1) +
                LongClick(kButton1));
    Post(kCOM2Of1 | kButton1 | kCOM2Of2), panel->GetPositions(), machine.loop.RunPending();
    ExpectHeard(Selector(1, 0, 0) + Selector(2, 0, 0) + Up(kButton1) + Up(kButton2) +
                Selector(1, kCOM2Of1, kNAV1Of1));
}

TEST_F(RadioPanelDeviceTest, ABoxThatStandsWithinAnEventDoesNotHoldThePanelUp) {
    constexpr Happening BoxCloses{"BoxCloses"}, At{"At"};  // milliseconds
    const uint64_t start = machine.clock.Elapsed();
    panel->ButtonLongClick.Connect([&](int32_t) { told += At(machine.clock.Elapsed() - start); });
    panel->ButtonDown.Connect([this, BoxCloses](int32_t) {
        machine.loop.After(900, [this] { Post(kCOM2Of1 | kButton1); });
        machine.loop.After(1100, [this] { Post(kCOM1Of1 | kButton1); });
        machine.loop.Advance(2000);
        told += BoxCloses();
    });
    Send(kButton1);
    ExpectHeard(Down(kButton1) + LongClick(kButton1) + At(1000) + Selector(1, kCOM2Of1, 0) +
                    Selector(1, kCOM1Of1, kCOM2Of1) + BoxCloses(),
                "what waits is told when its second is up");
    EXPECT_EQ(machine.loop.TimerCount(), 0U);
}

}  // namespace
