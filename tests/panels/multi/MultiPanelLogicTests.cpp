#include "tests/panels/multi/MultiPanelFlight.h"

namespace {

struct MultiPanelLogicTest : MultiPanelFlight {
    MultiPanelLogicTest() { Fly(); }
};

TEST_F(MultiPanelLogicTest, RowsOfEachPosition) {
    Simulator<int32_t>(kAltitude, 2560 * 65536), Simulator<int16_t>(kVerticalSpeed, -700);
    Simulator<int16_t>(kAirspeed, 250), Simulator(kHeading, 65535), Simulator(kCourse1, 7);
    EXPECT_EQ(RowsAt(ALT), "08399|-700");
    EXPECT_EQ(RowsAt(IAS), "250|");
    EXPECT_EQ(RowsAt(HDG), "360|") << "not wrapped on the display";
    EXPECT_EQ(RowsAt(CRS), "007|");
    EXPECT_EQ(RowsAt(None), "007|") << "no position leaves the rows";
    Simulator<int32_t>(kAltitude, -31 * 65536);
    EXPECT_EQ(RowsAt(VS), "-00102|-700");
    EXPECT_EQ(device.featureReports.back()[1], 0) << "the last five characters reach the panel";
    for (const auto& [heading, rows] :
         {std::pair{91, "000|"}, {92, "001|"}, {4096, "022|"}, {12288, "068|"}}) {
        Simulator(kHeading, static_cast<uint16_t>(heading));
        EXPECT_EQ(RowsAt(HDG), rows) << "to the nearest, halves to even";
    }
}

TEST_F(MultiPanelLogicTest, LightsNeedExactlyOne) {
    for (const uint32_t offset : {0x07BC, 0x07C4, 0x0804}) Simulator<int32_t>(offset, 1);
    Simulator<int32_t>(0x07C8, 2), Tick();
    EXPECT_EQ(Lights(), 0x85);
}

TEST_F(MultiPanelLogicTest, WithoutPowerThePanelIsDarkAndComesBack) {
    Simulator(kHeading, 16384);
    EXPECT_EQ(RowsAt(HDG), "090|");
    const auto shown = device.featureReports.back();
    for (const uint32_t power : {kBatteryMaster, kAvionicsMaster}) {
        Simulator<int32_t>(power, 0), Tick();
        EXPECT_EQ(device.featureReports.back()[1], kMultiDark);
        EXPECT_EQ(Shown(), "090|");
        Simulator<int32_t>(power, 1), Tick();
        EXPECT_EQ(device.featureReports.back(), shown);
    }
    const size_t reports = device.featureReports.size();
    Tick();
    EXPECT_EQ(device.featureReports.size(), reports);
    RowsAt(HDG);
    EXPECT_EQ(device.featureReports.size(), reports + 1) << "a move of the selector forces one";
}

TEST_F(MultiPanelLogicTest, KnobChangesTheValueOfThePosition) {
    const double foot = 65536 / 3.28084;
    const struct {
        Position position;
        uint32_t offset;
        double start;  // in the simulator's units
        int steps;
        std::string sent;
    } cases[] = {
        {HDG, kHeading, 14564, +1, WroteWord(kHeading, 14746)},
        {HDG, kHeading, 65353, +1, WroteWord(kHeading, 0)},
        {HDG, kHeading, 0, -1, WroteWord(kHeading, 65354)},
        {HDG, kHeading, 910, -20, WroteWord(kHeading, 65354)},  // below 0 it is 359 degrees
        {ALT, kAltitude, 0, +20, WroteDword(kAltitude, 39950744)},
        {ALT, kAltitude, 1000, -1, WroteDword(kAltitude, 0)},
        {ALT, kAltitude, 98500 * foot, +10, WroteDword(kAltitude, 1977561844)},
        {VS, kVerticalSpeed, -9900, -1, WroteWord(kVerticalSpeed, -9900)},
        {VS, kVerticalSpeed, 9850, +1, WroteWord(kVerticalSpeed, 9900)},
        {IAS, kAirspeed, 3, -5, WroteWord(kAirspeed, 0)},
        {IAS, kAirspeed, 250, +10, WroteWord(kAirspeed, 260)},
        {CRS, kCourse1, 359, +5, WroteWord(kCourse1, 0)},
        {CRS, kCourse1, 4, -5, WroteWord(kCourse1, 359)},
        {None, kHeading, 100, +1, kNothing},
    };
    for (const auto& test : cases) {
        Simulator<int32_t>(test.offset, static_cast<int32_t>(test.start)), Tick();
        if (position != test.position) MoveSelectorTo(test.position);
        TurnKnob(test.steps);
        EXPECT_EQ(Sent(), test.sent) << test.start;
    }
    Simulator(kVerticalSpeed, 0), MoveSelectorTo(VS), Sent();
    TurnKnob(+20), TurnKnob(-1);  // within one tick
    ExpectSent(WroteWord(kVerticalSpeed, 2000) + WroteWord(kVerticalSpeed, 1900));
}

TEST_F(MultiPanelLogicTest, CourseFollowsTheBindingOrTheEngine) {
    const struct {
        uint8_t courseSel, engine;
        const char* rows;
        std::string sent;
    } cases[] = {
        {1, 2, "011|", WroteWord(kCourse1, 12)}, {2, 1, "022|", WroteWord(kCourse2, 23)},
        {0, 1, "011|", WroteWord(kCourse1, 12)}, {0, 2, "022|", WroteWord(kCourse2, 23)},
        {0, 3, "011|", WroteWord(kCourse1, 12)}, {0, 4, "022|", WroteWord(kCourse2, 23)},
    };
    for (const auto& test : cases) {
        Simulator(kCourse1, 11), Simulator(kCourse2, 22);
        Logic().MPActions->CourseSel = test.courseSel;
        program->Session.EngineSelected = test.engine;
        EXPECT_EQ(RowsAt(CRS), test.rows);
        TurnKnob(+1), ExpectSent(test.sent);
    }
}

TEST_F(MultiPanelLogicTest, ButtonsToggleTheirHold) {
    Simulator<int32_t>(0x0800, 5), Simulator<int32_t>(0x07FC, 0), Click(Button::APR, Button::APR);
    LongClick(Button::HDG);
    ExpectSent(WroteDword(0x0800, 0) + WroteDword(0x07FC, 0) + WroteDword(0x0800, 1) +
               WroteDword(0x07FC, 1) + WroteDword(0x07C8, 1));
    Click(Button{0}, Button{9});  // none of the panel's
    Click(Button::AP, Button::NAV, Button::IAS, Button::ALT, Button::VS, Button::REV);
    ExpectSent(WroteDword(0x07BC, 1) + WroteDword(0x07C4, 1) + WroteDword(0x07DC, 1) +
               WroteDword(0x07D0, 1) + WroteDword(0x07EC, 1) + WroteDword(0x0804, 1));
}

TEST_F(MultiPanelLogicTest, TrimFlapsAndAutoThrottle) {
    TurnTrim(+1);
    EXPECT_EQ(sim.Get<int16_t>(kTrim), 32) << "at once";
    TurnTrim(-20), TurnTrim(+3);
    ExpectSent(WroteWord(kTrim, 32) + WroteWord(kTrim, -608) + WroteWord(kTrim, -512));
    Simulator<int16_t>(kTrim, 16380), TurnTrim(+1), ExpectSent(WroteWord(kTrim, 16383));
    Logic().MPActions->ReverseTrim = 1;
    Simulator<int16_t>(kTrim, -16380), TurnTrim(+20), ExpectSent(WroteWord(kTrim, -16383));
    Simulator<int16_t>(0x3BFA, 6000);  // from one notch to the next
    FlapsDown(), FlapsDown(), FlapsDown();
    ExpectSent(WroteWord(kFlaps, 6000) + WroteWord(kFlaps, 12000) + WroteWord(kFlaps, 16383));
    Logic().MPActions->ReverseFlaps = 1;
    FlapsDown(), FlapsUp(), FlapsDown(), FlapsDown(), FlapsDown();
    ExpectSent(WroteWord(kFlaps, 10383) + WroteWord(kFlaps, 16383) + WroteWord(kFlaps, 10383) +
               WroteWord(kFlaps, 4383) + WroteWord(kFlaps, 0));
    SetAutoThrottle(true), SetAutoThrottle(false);
    ExpectSent(WroteDword(kAutoThrottle, 1) + WroteDword(kAutoThrottle, 0));
}

// The controls that are bound, to actions of one kind numbered from 1.
std::string Bound(const std::string& kind) {
    std::string keys;
    int number = 0;
    for (const char* control :
         {"SelectorActionHDG", "SelectorActionCRS", "RotUpActionHDG", "RotDownActionHDG",
          "ButtonActionNAV", "LongButtonActionNAV", "TrimActionUP", "TrimActionDOWN",
          "FlapsActionUP", "FlapsActionDOWN", "AutoThrottleActionARM", "AutoThrottleActionOFF"})
        keys += control + ("=" + kind) + std::to_string(++number) + ",0,0\r\n";
    return keys;
}

TEST_F(MultiPanelFlight, RecordsGoOutInsteadOfTheBuiltInBehaviour) {
    for (const std::string kind : {"VKey,", "None,"}) {
        Fly("", Bound(kind)), MoveSelectorTo(HDG), TurnKnob(+3), TurnKnob(-1), MoveSelectorTo(CRS);
        MoveSelectorTo(IAS), MoveSelectorTo(HDG);
        Click(Button::NAV), LongClick(Button::NAV), TurnTrim(+2), TurnTrim(-1);
        FlapsUp(), FlapsDown(), SetAutoThrottle(true), SetAutoThrottle(false);
        std::string typed;
        for (const int key : {1, 3, 3, 3, 4, 2, 1, 5, 6, 7, 7, 8, 9, 10, 11, 12})
            typed += Typed(key);
        ExpectSent(kind == "VKey," ? typed : kNothing);
    }
}

TEST_F(MultiPanelFlight, VirtualButtonsArePressedAndReleasedOrHeldByTheirPlace) {
    Fly("", Bound("VButton,64,")), Simulator<uint32_t>(0x3340, 1U << 11);
    MoveSelectorTo(HDG), TurnKnob(+3), TurnKnob(-1);
    ExpectSent(Pressed(1) + Clicked(3) + Clicked(3) + Clicked(3) + Clicked(4));
    MoveSelectorTo(CRS), ExpectSent(Pressed(2) + Released(1));
    MoveSelectorTo(IAS), ExpectSent(Released(2));
    Click(Button::NAV), LongClick(Button::NAV), TurnTrim(+2), TurnTrim(-1), FlapsUp(), FlapsDown();
    ExpectSent(Clicked(5) + Clicked(6) + Clicked(7) + Clicked(7) + Clicked(8) + Clicked(9) +
               Clicked(10));
    SetAutoThrottle(true), ExpectSent(Pressed(11));
    SetAutoThrottle(false), ExpectSent(Released(12) + Released(11));
    Fly("", "SelectorActionHDG=VKey,64,1,0\r\nSelectorActionCRS=VButton,64,2\r\n");
    Simulator<uint32_t>(0x3340, 1), MoveSelectorTo(HDG), MoveSelectorTo(CRS);
    ExpectSent(Pressed(2) + Typed(16), "SHIFT; a key is no button to release");
}

// Twenty pulses in 200 ms are fast only to a sampler whose period is long enough to see them all.
TEST_F(MultiPanelLogicTest, AccelerationsFollowSelectorAndProfile) {
    const auto speeds = [this] {
        WaitMs(2000);
        for (int i = 0; i < 20; ++i) {
            device.SendReport({0, 0x28, 0, 0x08});  // pulses of the knob at HDG, and of the wheel
            device.SendReport({0, 0x08, 0, 0});
            WaitMs(10);
        }
        const MultiPanelPicture& picture = Multi().OnScreen;
        return picture.labSpeed.Caption.Get() + " " + picture.labSpeed2.Caption.Get();
    };
    Fly("", "RotaryAccelerationHDG=50\r\nTrimAcceleration=50\r\n"), MoveSelectorTo(HDG), Sent();
    EXPECT_EQ(speeds(), "20 20");
    MoveSelectorTo(IAS), Sent();
    EXPECT_EQ(speeds(), "1 20");
    MoveSelectorTo(HDG), Sent();
    EXPECT_EQ(speeds(), "20 20");
    Fly("", "");
    EXPECT_EQ(speeds(), "1 1") << "with the selector at rest";
    Fly("", "RotaryAccelerationHDG=300\r\nTrimAcceleration=306\r\n");
    EXPECT_EQ(speeds(), "1 1") << "held to 255: no such period has ended yet";
}

}  // namespace
