#include <gtest/gtest.h>

#include "bench/virtual/VirtualCockpit.h"

namespace {

struct MultiPanelLogicTest : testing::Test, VirtualCockpit {
    VirtualDevice& device = Plug(PanelKind::Multi);

    MultiPanelLogicTest() {
        Start();
        Connect();
    }

    cMultiPanelLogic& Logic() { return static_cast<cMultiPanelLogic&>(*Unit(1).logic); }
    std::string Rows(int32_t position) {
        Logic().SelectorChange(position, 0);
        Tick();
        return Multi().OnScreen.labUpperValue.Caption.Get() + "|" +
               Multi().OnScreen.labLowerValue.Caption.Get();
    }
    template <class T>
    T Read(uint32_t offset) {
        return machine.server.Get<T>(offset);
    }
};

TEST_F(MultiPanelLogicTest, RowsOfEachPosition) {
    machine.server.Set<int32_t>(0x07D4, 2560 * 65536);
    machine.server.Set<int16_t>(0x07F2, -700);
    machine.server.Set<int16_t>(0x07E2, 250);
    machine.server.Set<uint16_t>(0x07CC, 65535);
    machine.server.Set<uint16_t>(0x0C4E, 7);
    EXPECT_EQ(Rows(1), "08399|-700");
    EXPECT_EQ(Rows(3), "250|");
    EXPECT_EQ(Rows(4), "360|") << "not wrapped on the display";
    EXPECT_EQ(Rows(5), "007|");
    EXPECT_EQ(Rows(0), "007|") << "no position leaves the rows";
    machine.server.Set<int32_t>(0x07D4, -31 * 65536);
    EXPECT_EQ(Rows(2), "-00102|-700");
    EXPECT_EQ(device.featureReports.back()[1], 0) << "the last five characters reach the panel";
}

TEST_F(MultiPanelLogicTest, HeadingRoundsHalvesToEven) {
    const std::pair<uint16_t, const char*> cases[] = {
        {0, "000|"}, {91, "000|"}, {92, "001|"}, {16384, "090|"}, {0x8000, "180|"}};
    for (const auto& [heading, rows] : cases) {
        machine.server.Set<uint16_t>(0x07CC, heading);
        EXPECT_EQ(Rows(4), rows) << heading;
    }
}

TEST_F(MultiPanelLogicTest, LightsNeedExactlyOne) {
    for (const uint32_t offset : {0x07BC, 0x07C4, 0x0804}) machine.server.Set<int32_t>(offset, 1);
    machine.server.Set<int32_t>(0x07C8, 2);
    Tick();
    EXPECT_EQ(device.featureReports.back()[11], 0x85);
}

TEST_F(MultiPanelLogicTest, WithoutPowerThePanelIsDarkAndComesBack) {
    machine.server.Set<uint16_t>(0x07CC, 16384);
    Rows(4);
    const auto shown = device.featureReports.back();
    for (const uint32_t power : {0x281C, 0x2E80}) {
        machine.server.Set<int32_t>(power, 0);
        Tick();
        EXPECT_EQ(device.featureReports.back()[1], 15);
        EXPECT_EQ(Multi().OnScreen.labUpperValue.Caption.Get(), "090");
        machine.server.Set<int32_t>(power, 1);
        Tick();
        EXPECT_EQ(device.featureReports.back(), shown);
    }
}

TEST_F(MultiPanelLogicTest, KnobChangesTheValueOfThePosition) {
    const struct {
        const char* what;
        int32_t position;
        uint32_t offset;
        double start;  // in the simulator's units
        int16_t direction, speed;
        int32_t after;
    } cases[] = {
        {"heading", 4, 0x07CC, 14564, 1, 1, 14746},
        {"heading beyond north", 4, 0x07CC, 65353, 1, 1, 0},
        {"heading below north", 4, 0x07CC, 0, 0, 1, 65354},
        {"no wrap by arithmetic", 4, 0x07CC, 910, 0, 20, 65354},
        {"altitude", 1, 0x07D4, 0, 1, 20, 39950744},
        {"altitude floor", 1, 0x07D4, 1000, 0, 1, 0},
        {"altitude ceiling", 1, 0x07D4, 98500 / 3.28084 * 65536, 1, 10, 1977561844},
        {"vertical speed", 2, 0x07F2, -700, 1, 5, -200},
        {"vertical speed floor", 2, 0x07F2, -9900, 0, 1, -9900},
        {"speed floor", 3, 0x07E2, 3, 0, 5, 0},
        {"speed", 3, 0x07E2, 250, 1, 10, 260},
        {"course", 5, 0x0C4E, 359, 1, 5, 0},
        {"no position", 0, 0x07CC, 100, 1, 1, 100},
    };
    for (const auto& test : cases) {
        SCOPED_TRACE(test.what);
        machine.server.Set<int32_t>(test.offset, static_cast<int32_t>(test.start));
        Rows(test.position);
        Logic().Rotary(test.direction, test.speed);
        Tick();
        const bool wide = test.offset == 0x07D4;
        const int32_t now = wide                    ? Read<int32_t>(test.offset)
                            : test.offset == 0x07F2 ? Read<int16_t>(test.offset)
                                                    : Read<uint16_t>(test.offset);
        EXPECT_EQ(now, test.after);
    }
}

TEST_F(MultiPanelLogicTest, StepsBetweenTwoTicksAddUp) {
    Rows(4);
    for (int i = 0; i < 3; ++i) Logic().Rotary(1, 1);
    Logic().Rotary(0, 1);
    Tick();
    EXPECT_EQ(Read<uint16_t>(0x07CC), 364);
}

TEST_F(MultiPanelLogicTest, CourseFollowsTheBindingOrTheEngine) {
    machine.server.Set<uint16_t>(0x0C4E, 11);
    machine.server.Set<uint16_t>(0x0C5E, 22);
    const struct {
        uint8_t courseSel, engine;
        const char* rows;
        uint32_t written;
    } cases[] = {{1, 2, "011|", 0x0C4E}, {2, 1, "022|", 0x0C5E}, {0, 1, "011|", 0x0C4E},
                 {0, 2, "022|", 0x0C5E}, {0, 3, "011|", 0x0C4E}, {0, 4, "022|", 0x0C5E}};
    for (const auto& test : cases) {
        Logic().MPActions->CourseSel = test.courseSel;
        program->Session.EngineSelected = test.engine;
        EXPECT_EQ(Rows(5), test.rows);
        const auto before = Read<uint16_t>(test.written);
        Logic().Rotary(1, 1);
        Tick();
        EXPECT_EQ(Read<uint16_t>(test.written), before + 1);
        machine.server.Set<uint16_t>(test.written, before);
    }
}

TEST_F(MultiPanelLogicTest, ButtonsToggleTheirHold) {
    machine.server.Set<int32_t>(0x0800, 5);
    Logic().ButtonClick(7);
    Logic().ButtonLongClick(2);
    Logic().ButtonClick(0);
    Logic().ButtonClick(9);
    Tick();
    EXPECT_EQ(Read<int32_t>(0x0800), 0);
    EXPECT_EQ(Read<int32_t>(0x07FC), 0);
    EXPECT_EQ(Read<int32_t>(0x07C8), 1);
    Logic().ButtonClick(7);
    Tick();
    EXPECT_EQ(Read<int32_t>(0x07FC), 1) << "the glide slope follows the approach hold";
}

TEST_F(MultiPanelLogicTest, TrimFlapsAndAutoThrottle) {
    Logic().Trim(1, 1);
    EXPECT_EQ(Read<int16_t>(0x0BC0), 32) << "at once";
    Logic().MPActions->ReverseTrim = 1;
    machine.server.Set<int16_t>(0x0BC0, -16380);
    Logic().Trim(1, 20);
    EXPECT_EQ(Read<int16_t>(0x0BC0), -16383);
    machine.server.Set<int16_t>(0x3BFA, 5461);
    machine.server.Set<int16_t>(0x0BDC, 5461);
    Logic().Flaps(0);
    Tick();
    EXPECT_EQ(Read<int16_t>(0x0BDC), 10922);
    Logic().MPActions->ReverseFlaps = 1;
    for (int i = 0; i < 3; ++i) {
        Logic().Flaps(0);
        Tick();
    }
    EXPECT_EQ(Read<int16_t>(0x0BDC), 0);
    Logic().AutoThrottleChange(1);
    Tick();
    EXPECT_EQ(Read<int32_t>(0x0810), 1);
}

}  // namespace
