#include "tests/panels/multi/MultiPanelFlight.h"

namespace {

struct MultiPanelLogicTest : MultiPanelFlight {
    MultiPanelLogicTest() { Fly(); }
};

TEST_F(MultiPanelLogicTest, RowsOfEachPosition) {
    sim.Set<int32_t>(0x07D4, 2560 * 65536);
    sim.Set<int16_t>(0x07F2, -700);
    sim.Set<int16_t>(0x07E2, 250);
    sim.Set<uint16_t>(0x07CC, 65535);
    sim.Set<uint16_t>(0x0C4E, 7);
    EXPECT_EQ(Rows(1), "08399|-700");
    EXPECT_EQ(Rows(3), "250|");
    EXPECT_EQ(Rows(4), "360|") << "not wrapped on the display";
    EXPECT_EQ(Rows(5), "007|");
    EXPECT_EQ(Rows(0), "007|") << "no position leaves the rows";
    sim.Set<int32_t>(0x07D4, -31 * 65536);
    EXPECT_EQ(Rows(2), "-00102|-700");
    EXPECT_EQ(device.featureReports.back()[1], 0) << "the last five characters reach the panel";
    for (const auto& [heading, rows] :
         {std::pair{91, "000|"}, {92, "001|"}, {4096, "022|"}, {12288, "068|"}}) {
        sim.Set<uint16_t>(0x07CC, static_cast<uint16_t>(heading));
        EXPECT_EQ(Rows(4), rows) << "to the nearest, halves to even";
    }
}

TEST_F(MultiPanelLogicTest, LightsNeedExactlyOne) {
    for (const uint32_t offset : {0x07BC, 0x07C4, 0x0804}) sim.Set<int32_t>(offset, 1);
    sim.Set<int32_t>(0x07C8, 2);
    Tick();
    EXPECT_EQ(Lights(), 0x85);
}

TEST_F(MultiPanelLogicTest, WithoutPowerThePanelIsDarkAndComesBack) {
    sim.Set<uint16_t>(0x07CC, 16384);
    EXPECT_EQ(Rows(4), "090|");
    const auto shown = device.featureReports.back();
    for (const uint32_t power : {0x281C, 0x2E80}) {
        sim.Set<int32_t>(power, 0);
        Tick();
        EXPECT_EQ(device.featureReports.back()[1], kMultiDark);
        EXPECT_EQ(Shown(), "090|");
        sim.Set<int32_t>(power, 1);
        Tick();
        EXPECT_EQ(device.featureReports.back(), shown);
    }
    const size_t reports = device.featureReports.size();
    Tick();
    EXPECT_EQ(device.featureReports.size(), reports);
    Rows(4);
    EXPECT_EQ(device.featureReports.size(), reports + 1) << "a move of the selector forces one";
}

TEST_F(MultiPanelLogicTest, KnobChangesTheValueOfThePosition) {
    const struct {
        uint32_t offset;
        double start;  // in the simulator's units
        const char *acts, *sent;
    } cases[] = {
        {0x07CC, 14564, "selector 4 knob +1", "7cc=14746"},
        {0x07CC, 65353, "knob +1", "7cc=0"},
        {0x07CC, 0, "knob -1", "7cc=65354"},
        {0x07CC, 910, "knob -20", "7cc=65354"},  // no wrap by arithmetic
        {0x07D4, 0, "selector 1 knob +20", "7d4=39950744"},
        {0x07D4, 1000, "knob -1", "7d4=0"},
        {0x07D4, 98500 / 3.28084 * 65536, "knob +10", "7d4=1977561844"},
        {0x07F2, 0, "selector 2 knob +20 knob -1", "7f2=2000 7f2=1900"},  // from step to step
        {0x07F2, -9900, "knob -1", "7f2=55636"},
        {0x07F2, 9850, "knob +1", "7f2=9900"},
        {0x07E2, 3, "selector 3 knob -5", "7e2=0"},
        {0x07E2, 250, "knob +10", "7e2=260"},
        {0x0C4E, 359, "selector 5 knob +5", "c4e=0"},
        {0x0C4E, 4, "knob -5", "c4e=359"},
        {0x07CC, 100, "selector 0 knob +1", ""},
    };
    for (const auto& test : cases) {
        sim.Set<int32_t>(test.offset, static_cast<int32_t>(test.start));
        Tick();
        EXPECT_EQ(Do(test.acts), test.sent) << test.start;
    }
}

TEST_F(MultiPanelLogicTest, CourseFollowsTheBindingOrTheEngine) {
    const struct {
        uint8_t courseSel, engine;
        const char *rows, *sent;
    } cases[] = {{1, 2, "011|", "c4e=12"}, {2, 1, "022|", "c5e=23"}, {0, 1, "011|", "c4e=12"},
                 {0, 2, "022|", "c5e=23"}, {0, 3, "011|", "c4e=12"}, {0, 4, "022|", "c5e=23"}};
    for (const auto& test : cases) {
        sim.Set<uint16_t>(0x0C4E, 11);
        sim.Set<uint16_t>(0x0C5E, 22);
        Logic().MPActions->CourseSel = test.courseSel;
        program->Session.EngineSelected = test.engine;
        EXPECT_EQ(Rows(5), test.rows);
        EXPECT_EQ(Do("knob +1"), test.sent);
    }
}

TEST_F(MultiPanelLogicTest, ButtonsToggleTheirHold) {
    sim.Set<int32_t>(0x0800, 5);
    sim.Set<int32_t>(0x07FC, 0);
    EXPECT_EQ(Do("click 7 click 7 long 2"), "800=0 7fc=0 800=1 7fc=1 7c8=1");
    EXPECT_EQ(Do("click 0 click 9 click 1 click 3 click 4 click 5 click 6 click 8"),
              "7bc=1 7c4=1 7dc=1 7d0=1 7ec=1 804=1");
}

TEST_F(MultiPanelLogicTest, TrimFlapsAndAutoThrottle) {
    Logic().Trim(1, 1);
    EXPECT_EQ(sim.Get<int16_t>(0x0BC0), 32) << "at once";
    EXPECT_EQ(Do("trim -20 trim +3"), "bc0=32 bc0=64928 bc0=65024");
    sim.Set<int16_t>(0x0BC0, 16380);
    EXPECT_EQ(Do("trim +1"), "bc0=16383");
    Logic().MPActions->ReverseTrim = 1;
    sim.Set<int16_t>(0x0BC0, -16380);
    EXPECT_EQ(Do("trim +20"), "bc0=49153");
    sim.Set<int16_t>(0x3BFA, 6000);
    EXPECT_EQ(Do("flaps -1 flaps -1 flaps -1"), "bdc=6000 bdc=12000 bdc=16383");
    Logic().MPActions->ReverseFlaps = 1;
    EXPECT_EQ(Do("flaps -1 flaps +1 flaps -1 flaps -1 flaps -1"),
              "bdc=10383 bdc=16383 bdc=10383 bdc=4383 bdc=0");
    EXPECT_EQ(Do("throttle 1 throttle 0"), "810=1 810=0");
}

TEST_F(MultiPanelFlight, RecordsGoOutInsteadOfTheBuiltInBehaviour) {
    const struct {
        const char *acts, *buttons, *keys;
    } steps[] = {
        {"selector 4 knob +3 knob -1", "+1 +3 -3 +3 -3 +3 -3 +4 -4", "1 3 3 3 4"},
        {"selector 5", "+2 -1", "2"},
        {"selector 3", "-2", ""},
        {"selector 4", "+1", "1"},
        {"click 3 long 3", "+5 -5 +6 -6", "5 6"},
        {"trim +2 trim -1", "+7 -7 +7 -7 +8 -8", "7 7 8"},
        {"flaps +1 flaps -1", "+9 -9 +10 -10", "9 10"},
        {"throttle 1 throttle 0", "+11 -12 -11", "11 12"},
    };
    for (const std::string kind : {"VButton,64,", "VKey,", "None,"}) {
        std::string keys;
        int number = 0;
        for (const char* control :
             {"SelectorActionHDG", "SelectorActionCRS", "RotUpActionHDG", "RotDownActionHDG",
              "ButtonActionNAV", "LongButtonActionNAV", "TrimActionUP", "TrimActionDOWN",
              "FlapsActionUP", "FlapsActionDOWN", "AutoThrottleActionARM", "AutoThrottleActionOFF"})
            keys += control + ("=" + kind) + std::to_string(++number) + ",0,0\r\n";
        Fly("", keys);
        Do("selector 0");
        sim.Set<uint32_t>(0x3340, 1U << 11);
        for (const auto& step : steps) {
            const char* sent = kind == "VKey," ? step.keys : kind == "None," ? "" : step.buttons;
            EXPECT_EQ(Do(step.acts), sent) << kind << step.acts;
        }
    }
    Fly("", "SelectorActionHDG=VKey,64,1,0\r\nSelectorActionCRS=VButton,64,2\r\n");
    sim.Set<uint32_t>(0x3340, 1);
    EXPECT_EQ(Do("selector 4 selector 5"), "+2 16") << "SHIFT; a key is no button to release";
}

// Twenty pulses in 200 ms are fast only to a sampler whose period is long enough to see them all.
TEST_F(MultiPanelLogicTest, AccelerationsFollowSelectorAndProfile) {
    const auto speeds = [this] {
        machine.loop.Advance(2000);
        for (int i = 0; i < 20; ++i) {
            device.SendReport({0, 0x28, 0, 0x08});
            device.SendReport({0, 0x08, 0, 0});
            machine.loop.Advance(10);
        }
        const MultiPanelPicture& picture = Multi().OnScreen;
        return picture.labSpeed.Caption.Get() + " " + picture.labSpeed2.Caption.Get();
    };
    Fly("", "RotaryAccelerationHDG=50\r\nTrimAcceleration=50\r\n");
    Do("selector 4");
    EXPECT_EQ(speeds(), "20 20");
    Do("selector 3");
    EXPECT_EQ(speeds(), "1 20");
    Do("selector 4");
    EXPECT_EQ(speeds(), "20 20");
    Fly("", "");
    EXPECT_EQ(speeds(), "1 1") << "with the selector at rest";
    Fly("", "RotaryAccelerationHDG=300\r\nTrimAcceleration=306\r\n");
    EXPECT_EQ(speeds(), "1 1") << "held to 255: no such period has ended yet";
}

}  // namespace
