#include "tests/panels/multi/MultiPanelFlight.h"

namespace {

using MultiPanelSpecialModeTest = MultiPanelFlight;

constexpr int32_t kWheelUp = 16384, kWheelDown = 8192;  // parameters of the NGX's knobs

TEST_F(MultiPanelSpecialModeTest, NGXShowsTheWindowsAndLampsOfTheAddOn) {
    for (const uint32_t lamp : {0, 0x653F, 0x6546}) Simulator<uint8_t>(lamp, 1);
    Simulator<uint8_t>(0x6540, 2), Simulator<int32_t>(0x07D0, 1);
    Simulator(0x652E, 5000);           // altitude
    Simulator(0x652C, 7);              // heading
    Simulator(0x6522, 359);            // second course
    Simulator<int16_t>(0x6530, -700);  // vertical speed
    Fly("ngx", "CourseSel=2\r\nNGXAPShort=17\r\n");
    EXPECT_EQ(Lights(), 3) << "AP by offset 0, HDG by its lamp; no long function's lamp";
    for (const auto& [speed, rows] : {std::pair{9.9994F, "9.999|"},
                                      {10.0F, "10|"},
                                      {250.5F, "250|"},
                                      {251.5F, "252|"},
                                      {0.78F, "0.780|"}}) {
        Simulator<float>(0x6524, speed);
        EXPECT_EQ(RowsAt(IAS), rows);
    }
    EXPECT_EQ(device.featureReports.back()[2], kMultiBlank) << "the point";
    EXPECT_EQ(RowsAt(ALT), "5000|-0700");
    EXPECT_EQ(RowsAt(HDG), "007|");
    EXPECT_EQ(RowsAt(CRS), "359|");
    for (const uint32_t blank : {0x6528, 0x6532}) Simulator<uint8_t>(blank, 2);
    EXPECT_EQ(RowsAt(VS), "5000|");
    EXPECT_EQ(RowsAt(IAS), "|");
}

TEST_F(MultiPanelSpecialModeTest, NGXKnobsTurnByTheWheel) {
    Fly("ngx", "CourseSel=0\r\n");
    const struct {
        Position position;
        int32_t control, up, down;
    } knobs[] = {{ALT, 70032, kWheelUp, kWheelDown},
                 {VS, 70033, kWheelDown, kWheelUp},  // reversed
                 {IAS, 70016, kWheelUp, kWheelDown},
                 {HDG, 70022, kWheelUp, kWheelDown}};
    TurnKnob(+1), ExpectSent(kNothing, "no position");
    for (const auto& knob : knobs) {
        MoveSelectorTo(knob.position), TurnKnob(+20), TurnKnob(-1);
        ExpectSent(SentControl(knob.control, knob.up) + SentControl(knob.control, knob.down));
    }
    MoveSelectorTo(CRS), TurnKnob(+1), ExpectSent(SentControl(70008, kWheelUp));
    program->Session.EngineSelected = 4;
    TurnKnob(-1), ExpectSent(SentControl(70041, kWheelDown));
}

TEST_F(MultiPanelSpecialModeTest, NGXButtonsAndLeversGoOutAsControls) {
    Fly("ngx", "NGXIASShort=17\r\nButtonActionREV=VButton,64,1\r\n");
    Click(Button::AP), LongClick(Button::AP), Click(Button::IAS);
    ExpectSent(SentControl(70034, kLeftClick) + SentControl(70035, kLeftClick) +
               SentControl(70019, kLeftClick));
    Click(Button::REV), ExpectSent(Clicked(1), "a record comes first");
    const uint64_t before = machine.clock.Elapsed();
    const std::string trimUp = SentControl(65615, 0), trimDown = SentControl(65607, 0);
    const std::string flapsUp = SentControl(65759, 0), flapsDown = SentControl(65758, 0);
    TurnTrim(+3), TurnTrim(-1), ExpectSent(trimUp + trimUp + trimUp + trimDown);
    EXPECT_EQ(machine.clock.Elapsed(), before + 4 * 50 + 10) << "a pause after each";
    FlapsUp(), FlapsDown(), ExpectSent(flapsUp + flapsDown);
    Logic().MPActions->ReverseTrim = 2;
    Logic().MPActions->ReverseFlaps = 2;
    TurnTrim(+1), FlapsDown(), ExpectSent(trimDown + flapsUp);
    for (const uint8_t addOn : {uint8_t{0}, uint8_t{1}, uint8_t{2}}) {
        Simulator<uint8_t>(0x6535, addOn), Tick();
        SetAutoThrottle(false), ExpectSent(addOn == 1 ? SentControl(70012, kLeftClick) : kNothing);
        SetAutoThrottle(true), ExpectSent(addOn == 0 ? SentControl(70012, kLeftClick) : kNothing);
    }
}

TEST_F(MultiPanelSpecialModeTest, MaddogButtons) {
    Fly("maddog", "ButtonActionHDG=VButton,64,1\r\nTrimActionUP=VButton,64,1\r\n");
    const struct {
        Button button;
        std::string click, longClick;
    } cases[] = {
        {Button{0}, kNothing, kNothing},
        {Button::AP, SentControl(69666, 1), SentControl(69666, 1)},
        {Button::HDG, SentControl(69659, 1), SentControl(69658, 1)},
        {Button::NAV, SentControl(69672, 1), SentControl(69673, 1)},
        {Button::IAS, SentControl(69669, 1), SentControl(69677, 1)},
        {Button::ALT, SentControl(69663, 0) + SentControl(69664, 1), SentControl(69679, 1)},
        {Button::VS, SentControl(69676, 1), SentControl(69678, 1)},
        {Button::APR, SentControl(69674, 1), SentControl(69675, 1)},
        {Button{9}, kNothing, kNothing},
    };
    for (const auto& [button, click, longClick] : cases) {
        EXPECT_EQ((Click(button), Sent()), click) << static_cast<int>(button);
        EXPECT_EQ((LongClick(button), Sent()), longClick) << static_cast<int>(button);
    }
    for (const int mode : {1, 5, 3, 4, 6, 2, 1}) {
        Click(Button::REV), ExpectSent(SentControl(69740, mode) + SentControl(69671, 1));
    }
    LongClick(Button::REV), Click(Button::IAS);
    ExpectSent(SentControl(69655, 1) + SentControl(69745, 1), "Mach");
    Simulator<int32_t>(0x07BC, 1), Tick(), Click(Button::AP, Button::AP);
    ExpectSent(SentControl(69666, 0) + SentControl(69666, 1), "from what the simulator says");
    SetAutoThrottle(true), SetAutoThrottle(false);
    ExpectSent(SentControl(69665, 1) + SentControl(69665, 0));
    TurnTrim(+1), TurnTrim(-1), FlapsDown();
    ExpectSent(Clicked(1) + WroteWord(kTrim, -32) + WroteWord(kFlaps, 0), "as standard");
}

TEST_F(MultiPanelSpecialModeTest, MaddogKnobChangesAndSendsThePanelsOwnValues) {
    Fly("maddog", "CourseSel=2\r\nRotUpActionALT=None\r\n");
    const auto altitude = [](int feet) {
        return SentControl(69662, feet) + SentControl(69663, feet);
    };
    const auto verticalSpeed = [](int feetPerMinute) {
        return SentControl(69677, 1) + SentControl(69676, 1) + SentControl(69660, feetPerMinute);
    };
    const auto speed = [](int knots) {
        return SentControl(69653, knots) + SentControl(69661, knots);
    };
    MoveSelectorTo(ALT), TurnKnob(-1), Expect(altitude(0), "00000|0");
    TurnKnob(+5), Click(Button::ALT);
    Expect(altitude(500) + SentControl(69663, 500) + SentControl(69664, 1), "00500|0");
    TurnKnob(+986), Expect(altitude(99000), "99000|0");
    MoveSelectorTo(VS), TurnKnob(+41), Expect(verticalSpeed(4000), "99000|4000");
    TurnKnob(-121), Expect(verticalSpeed(-8000), "99000|-8000");
    MoveSelectorTo(IAS), TurnKnob(-1), Expect(speed(100), "100|-8000");
    TurnKnob(+249), TurnKnob(+5), Expect(speed(349) + speed(350), "350|-8000");
    LongClick(Button::REV), TurnKnob(-1), TurnKnob(+400);
    Expect(SentControl(69655, 1) + SentControl(69654, 500) + SentControl(69654, 900),
           "0900|-8000");  // Mach
    LongClick(Button::REV), Expect(SentControl(69655, 0), "350|-8000");
    MoveSelectorTo(HDG), TurnKnob(+358), TurnKnob(+5);
    Expect(SentControl(69656, 358) + SentControl(69656, 3), "003|-8000");
    TurnKnob(-4), LongClick(Button::REV);
    Expect(SentControl(69656, 359) + SentControl(69655, 1), "359|-8000");
    MoveSelectorTo(CRS), TurnKnob(+360), Expect(SentControl(65717, 0), "000|-8000");
    MoveSelectorTo(IAS), ExpectShown("0900|-8000");
    MoveSelectorTo(ALT), ExpectShown("99000|-8000");
    EXPECT_EQ(Lights(), 128) << "Mach";
}

TEST_F(MultiPanelSpecialModeTest, MaddogStartsAfreshAndShowsNothingNewByItself) {
    Simulator(kHeading, 16384);
    for (const uint32_t light : {0x07BC, 0x07C8}) Simulator<int32_t>(light, 1);
    Fly();
    EXPECT_EQ(RowsAt(HDG), "090|");
    EXPECT_EQ(Lights(), 3);
    Simulator<int32_t>(kBatteryMaster, 0);
    for (const char* rows : {"090|", "005|"}) {
        Fly("maddog");
        EXPECT_EQ(Shown(), rows);
        EXPECT_EQ(Lights(), 1) << "power doesn't count here";
        Click(Button::REV), LongClick(Button::REV), TurnKnob(+5);
        ExpectSent(SentControl(69740, 1) + SentControl(69671, 1) + SentControl(69655, 1) +
                   SentControl(69656, 5));
        EXPECT_EQ(Lights(), 129);
    }
}

TEST_F(MultiPanelSpecialModeTest, NGXLightsOfTwoPanelsFollowTheirOwnFunctions) {
    VirtualDevice& second = Plug(PanelKind::Multi, 2);
    FlyWith("[Common]\nSpecialMode=ngx\n[MultiPanel1]\nNGXAPShort=4\n[MultiPanel2]\nNGXAPShort=7");
    const auto lights = [&] {
        Tick();
        return std::pair(Lights(), int{second.featureReports.back()[11]});
    };
    Simulator<uint8_t>(0x6540, 1);  // LNAV
    EXPECT_EQ(lights(), std::pair(1 | 4, 4)) << "of AP, and of NAV on both";
    Simulator<uint8_t>(0x6540, 0);
    Simulator<uint8_t>(0x653F, 1);  // HDG SEL
    EXPECT_EQ(lights(), std::pair(2, 1 | 2));
    Multi().cmdSetup.Press();
    EXPECT_EQ(lights(), std::pair(2, 1 | 2)) << "whoever was set up last";
}

}  // namespace
