#include "tests/panels/multi/MultiPanelFlight.h"

namespace {

using MultiPanelSpecialModeTest = MultiPanelFlight;

TEST_F(MultiPanelSpecialModeTest, NGXShowsTheWindowsAndLampsOfTheAddOn) {
    for (const uint32_t lamp : {0, 0x653F, 0x6546}) sim.Set<uint8_t>(lamp, 1);
    sim.Set<uint8_t>(0x6540, 2);
    sim.Set<int32_t>(0x07D0, 1);
    sim.Set<uint16_t>(0x652E, 5000);
    sim.Set<uint16_t>(0x652C, 7);
    sim.Set<uint16_t>(0x6522, 359);
    sim.Set<int16_t>(0x6530, -700);
    Fly("ngx", "CourseSel=2\r\nNGXAPShort=17\r\n");
    EXPECT_EQ(Lights(), 3) << "AP by offset 0, HDG by its lamp; no long function's lamp";
    for (const auto& [speed, rows] : {std::pair{9.9994F, "9.999|"},
                                      {10.0F, "10|"},
                                      {250.5F, "250|"},
                                      {251.5F, "252|"},
                                      {0.78F, "0.780|"}}) {
        sim.Set<float>(0x6524, speed);
        EXPECT_EQ(Rows(3), rows);
    }
    EXPECT_EQ(device.featureReports.back()[2], kMultiBlank) << "the point";
    EXPECT_EQ(Rows(1) + Rows(4) + Rows(5), "5000|-0700007|359|");
    for (const uint32_t blank : {0x6528, 0x6532}) sim.Set<uint8_t>(blank, 2);
    EXPECT_EQ(Rows(2) + Rows(3), "5000||");
}

TEST_F(MultiPanelSpecialModeTest, NGXInputsGoOutAsControls) {
    Fly("ngx", "CourseSel=0\r\nNGXIASShort=17\r\nButtonActionREV=VButton,64,1\r\n");
    EXPECT_EQ(Do("knob +1 selector 1 knob +20 knob -1"), "70032:16384 70032:8192");
    EXPECT_EQ(Do("selector 2 knob +20 knob -1"), "70033:8192 70033:16384") << "reversed";
    EXPECT_EQ(Do("selector 3 knob +1 selector 4 knob -1"), "70016:16384 70022:8192");
    EXPECT_EQ(Do("selector 5 knob +1"), "70008:16384");
    program->Session.EngineSelected = 4;
    EXPECT_EQ(Do("knob -1"), "70041:8192");
    EXPECT_EQ(Do("click 1 long 1 click 4"), "70034:536870912 70035:536870912 70019:536870912");
    EXPECT_EQ(Do("click 8"), "+1 -1") << "a record comes first";
    const uint64_t before = machine.clock.Elapsed();
    EXPECT_EQ(Do("trim +3 trim -1"), "65615:0 65615:0 65615:0 65607:0");
    EXPECT_EQ(machine.clock.Elapsed(), before + 4 * 50 + 10) << "a pause after each";
    EXPECT_EQ(Do("flaps +1 flaps -1"), "65759:0 65758:0");
    Logic().MPActions->ReverseTrim = 2;
    Logic().MPActions->ReverseFlaps = 2;
    EXPECT_EQ(Do("trim +1 flaps -1"), "65607:0 65759:0");
    for (const uint8_t addOn : {uint8_t{0}, uint8_t{1}, uint8_t{2}}) {
        sim.Set<uint8_t>(0x6535, addOn);
        Tick();
        EXPECT_EQ(Do("throttle 0"), addOn == 1 ? "70012:536870912" : "");
        EXPECT_EQ(Do("throttle 1"), addOn == 0 ? "70012:536870912" : "");
    }
}

TEST_F(MultiPanelSpecialModeTest, MaddogButtons) {
    Fly("maddog", "ButtonActionHDG=VButton,64,1\r\nTrimActionUP=VButton,64,1\r\n");
    EXPECT_EQ(Do("click 0 click 9 click 1 click 2 click 3 click 4 click 5 click 6 click 7"),
              "69666:1 69659:1 69672:1 69669:1 69663:0 69664:1 69676:1 69674:1");
    for (const char* mode : {"1", "5", "3", "4", "6", "2", "1"})
        EXPECT_EQ(Do("click 8"), std::string("69740:") + mode + " 69671:1");
    EXPECT_EQ(Do("long 0 long 1 long 2 long 3 long 4 long 5 long 6 long 7 long 8 click 4"),
              "69666:1 69658:1 69673:1 69677:1 69679:1 69678:1 69675:1 69655:1 69745:1");
    sim.Set<int32_t>(0x07BC, 1);
    Tick();
    EXPECT_EQ(Do("click 1 click 1"), "69666:0 69666:1") << "from what the simulator says";
    EXPECT_EQ(Do("throttle 1 throttle 0"), "69665:1 69665:0");
    EXPECT_EQ(Do("trim +1 trim -1 flaps -1"), "+1 -1 bc0=65504 bdc=0") << "as standard";
}

TEST_F(MultiPanelSpecialModeTest, MaddogKnobChangesAndSendsThePanelsOwnValues) {
    Fly("maddog", "CourseSel=2\r\nRotUpActionALT=None\r\n");
    const struct {
        const char *acts, *sent, *rows;
    } steps[] = {
        {"selector 1 knob -1", "69662:0 69663:0", "00000|0"},
        {"knob +5 click 5", "69662:500 69663:500 69663:500 69664:1", "00500|0"},
        {"knob +986", "69662:99000 69663:99000", "99000|0"},
        {"selector 2 knob +41", "69677:1 69676:1 69660:4000", "99000|4000"},
        {"knob -121", "69677:1 69676:1 69660:-8000", "99000|-8000"},
        {"selector 3 knob -1", "69653:100 69661:100", "100|-8000"},
        {"knob +249 knob +5", "69653:349 69661:349 69653:350 69661:350", "350|-8000"},
        {"long 8 knob -1 knob +400", "69655:1 69654:500 69654:900", "0900|-8000"},
        {"long 8", "69655:0", "350|-8000"},
        {"selector 4 knob +358 knob +5", "69656:358 69656:3", "003|-8000"},
        {"knob -4 long 8", "69656:359 69655:1", "359|-8000"},
        {"selector 5 knob +360", "65717:0", "000|-8000"},
        {"selector 3", "", "0900|-8000"},
        {"selector 1", "", "99000|-8000"},
    };
    for (const auto& step : steps) {
        EXPECT_EQ(Do(step.acts), step.sent);
        EXPECT_EQ(Shown(), step.rows) << step.acts;
    }
    EXPECT_EQ(Lights(), 128) << "Mach";
}

TEST_F(MultiPanelSpecialModeTest, MaddogStartsAfreshAndShowsNothingNewByItself) {
    sim.Set<uint16_t>(0x07CC, 16384);
    for (const uint32_t light : {0x07BC, 0x07C8}) sim.Set<int32_t>(light, 1);
    Fly();
    EXPECT_EQ(Rows(4), "090|");
    EXPECT_EQ(Lights(), 3);
    sim.Set<int32_t>(0x281C, 0);
    for (const char* rows : {"090|", "005|"}) {
        Fly("maddog");
        EXPECT_EQ(Shown(), rows);
        EXPECT_EQ(Lights(), 1) << "power doesn't count here";
        EXPECT_EQ(Do("click 8 long 8 knob +5"), "69740:1 69671:1 69655:1 69656:5");
        EXPECT_EQ(Lights(), 129);
    }
}

}  // namespace
