#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "panels/multi/ctlMultiPanel.h"
#include "platform/virtual/VirtualPlatform.h"
#include "toolkit/Form.h"
#include "toolkit/HeadlessUi.h"

namespace {

namespace Bit = MultiPanelBit;
using Report = VirtualDevice::Report;

constexpr Color kRed = 0x0000FF, kYellow = 0x00FFFF, kWhite = 0xFFFFFF;

struct MultiPanelDeviceTest : testing::Test {
    VirtualPlatform machine;
    HeadlessUi ui;
    Form form{ui};
    cSetupHolder setup{machine.ini, machine.files, machine.registry, "C:\\Orvo"};
    VirtualDevice& device = machine.bus.Add(0x06A3, 0x0D06, "multi");
    std::unique_ptr<ctlMultiPanel> panel = std::make_unique<ctlMultiPanel>(
        form, DeviceServices{machine.clock, machine.loop, machine.hid, machine.deckhub, setup});
    std::string log, first;

    MultiPanelDeviceTest() {
        const auto number = [this](const char* name) {
            return [this, name](int32_t n) { log += name + std::to_string(n) + " "; };
        };
        panel->ButtonClick.Connect(number("click"));
        panel->ButtonLongClick.Connect(number("long"));
        panel->RotaryUp.Connect(number("right"));
        panel->RotaryDown.Connect(number("left"));
        panel->TrimUp.Connect(number("trimup"));
        panel->TrimDown.Connect(number("trimdown"));
        panel->FlapsUp.Connect([this] { log += "flapsup "; });
        panel->FlapsDown.Connect([this] { log += "flapsdown "; });
        panel->AutoThrottleChange.Connect([this](bool arm) { log += arm ? "ARM " : "OFF "; });
        panel->SelectorChange.Connect([this](int32_t now, int32_t before) {
            log += "sel" + std::to_string(now >> 16) + "<" + std::to_string(before >> 16) + " ";
        });
        panel->Connect("multi");
        device.SendReport({0x77, 0, 0, 0});
        machine.loop.RunPending();
        first = Take();
    }

    void Send(int32_t state) {
        device.SendReport({0, static_cast<uint8_t>(state >> 16), static_cast<uint8_t>(state >> 8),
                           static_cast<uint8_t>(state)});
        machine.loop.RunPending();
    }
    void Pulse(int32_t bit, int times = 1) {
        for (int i = 0; i < times; ++i) {
            Send(bit);
            Send(0);
        }
    }
    std::string Take() { return std::exchange(log, {}); }
    Color ButtonColor(size_t row) { return panel->OnScreen.shpButton[row]->FillColor; }
};

TEST_F(MultiPanelDeviceTest, FirstReportTellsSelectorAndSwitchAndByte0SaysNothing) {
    EXPECT_EQ(first, "sel0<0 OFF ");
    device.SendReport({0, 0x08, 0});
    machine.loop.RunPending();
    EXPECT_EQ(Take(), "") << "short reports are dropped";
}

// As an action that sends a keystroke lets in what waits.
TEST_F(MultiPanelDeviceTest, ReportsThatComeWithinAnEventAreTakenOnce) {
    panel->SelectorChange.Connect([this](int32_t, int32_t) { machine.loop.RunPending(); });
    panel->RotaryUp.Connect([this](int16_t) { machine.loop.RunPending(); });
    const auto post = [this](std::vector<int32_t> states) {
        for (const int32_t state : states) {
            device.SendReport({0, static_cast<uint8_t>(state >> 16), 0, 0});
        }
        machine.loop.RunPending();
        return Take();
    };
    const int32_t hdg = Bit::kSelectorHDG, crs = Bit::kSelectorCRS, ap = Bit::kButtonAP;
    EXPECT_EQ(post({hdg, crs, crs | ap}), "sel8<0 sel16<8 ");
    EXPECT_EQ(post({crs}), "click8388608 ");
    std::vector<int32_t> turn;
    for (int pulse = 0; pulse < 20; ++pulse) {
        turn.push_back(crs | Bit::kKnobClockwisePulse);
        turn.push_back(crs);
    }
    std::string tenSteps;
    for (int step = 0; step < 10; ++step) tenSteps += "right1 ";
    EXPECT_EQ(post(turn), tenSteps);
}

TEST_F(MultiPanelDeviceTest, TwoPulsesMakeAStep) {
    Pulse(Bit::kKnobClockwisePulse);
    EXPECT_EQ(Take(), "");
    machine.loop.Advance(5000);
    Pulse(Bit::kKnobClockwisePulse);
    EXPECT_EQ(Take(), "right1 ") << "after any pause";
    machine.loop.Advance(300);
    Pulse(Bit::kKnobCounterClockwisePulse);
    machine.loop.Advance(300);
    Pulse(Bit::kKnobClockwisePulse);
    EXPECT_EQ(Take(), "") << "each direction has its own pair";
    machine.loop.Advance(300);
    Pulse(Bit::kKnobCounterClockwisePulse);
    EXPECT_EQ(Take(), "left1 ");
    machine.loop.Advance(1000);
    Send(Bit::kTrimUpPulse);
    machine.loop.Advance(249);
    Send(0);
    Send(Bit::kTrimUpPulse);
    machine.loop.Advance(250);
    Send(0);
    EXPECT_EQ(Take(), "") << "released too late";
    Pulse(Bit::kTrimUpPulse);
    EXPECT_EQ(Take(), "trimup1 ");
}

TEST_F(MultiPanelDeviceTest, OtherReportsWithinTheWindowCountAsReleases) {
    Send(Bit::kKnobClockwisePulse);
    Send(Bit::kKnobCounterClockwisePulse);
    EXPECT_EQ(Take(), "");
    Send(Bit::kButtonAP);
    EXPECT_EQ(Take(), "right1 ") << "the second report without the bit";
    machine.loop.Advance(200);
    Send(0);
    EXPECT_EQ(Take(), "click8388608 ") << "the window of the other direction is over";
}

TEST_F(MultiPanelDeviceTest, SpeedFollowsThePulsesOfAPeriod) {
    const struct {
        int32_t bit;
        int pulses;
        const char* steps;
    } cases[] = {
        {Bit::kKnobClockwisePulse, 10, "right1 "},  {Bit::kKnobClockwisePulse, 11, "right5 "},
        {Bit::kKnobClockwisePulse, 14, "right10 "}, {Bit::kKnobClockwisePulse, 17, "right20 "},
        {Bit::kTrimDownPulse, 5, "trimdown1 "},     {Bit::kTrimDownPulse, 6, "trimdown5 "},
        {Bit::kTrimDownPulse, 10, "trimdown10 "},   {Bit::kTrimDownPulse, 13, "trimdown20 "},
    };
    for (const auto& test : cases) {
        SCOPED_TRACE(test.pulses);
        machine.loop.Advance(1000);
        Pulse(test.bit, test.pulses);
        machine.loop.Advance(200);
        Take();
        Pulse(test.bit, 2);
        EXPECT_TRUE(Take().starts_with(test.steps));
        machine.loop.Advance(200);
        Pulse(test.bit, 2);
        EXPECT_TRUE(Take().starts_with(test.steps)) << "a few pulses keep the speed";
        if (test.pulses % 2 != 0) Pulse(test.bit);
    }
    machine.loop.Advance(1000);
    EXPECT_EQ(panel->OnScreen.labSpeed.Caption.Get(), "1");
}

TEST_F(MultiPanelDeviceTest, AccelerationSetsThePeriod) {
    panel->RotAcceleration(50);  // 200 ms
    panel->TrimAcceleration(0);
    Pulse(Bit::kKnobClockwisePulse, 20);
    Take();
    machine.loop.Advance(199);
    Pulse(Bit::kKnobClockwisePulse, 2);
    machine.loop.Advance(1);
    Pulse(Bit::kKnobClockwisePulse, 2);
    EXPECT_EQ(Take(), "right1 right20 ");
    machine.loop.Advance(1000);
    Pulse(Bit::kTrimUpPulse, 20);
    machine.loop.Advance(1000);
    Take();
    Pulse(Bit::kTrimUpPulse, 2);
    EXPECT_EQ(Take(), "trimup1 ") << "no sampling";
}

TEST_F(MultiPanelDeviceTest, ClicksAndLongClicksAtTheThreshold) {
    setup.ClickThreshold = 500;
    Send(Bit::kButtonHDG);
    EXPECT_EQ(ButtonColor(1), kRed);
    machine.loop.Advance(499);
    Send(0);
    EXPECT_EQ(Take(), "click256 ");
    EXPECT_EQ(ButtonColor(1), kWhite);
    machine.loop.Advance(1000);
    EXPECT_EQ(Take(), "");
    Send(Bit::kButtonHDG);
    machine.loop.Advance(500);
    Send(0);
    EXPECT_EQ(Take(), "") << "at the threshold itself no click";
    machine.loop.Advance(15);
    EXPECT_EQ(Take(), "long256 ") << "but the long click, even after the release";
    Send(Bit::kButtonREV);
    machine.loop.Advance(2000);
    EXPECT_EQ(Take(), "long16384 ");
    Send(0);
    machine.loop.Advance(1000);
    EXPECT_EQ(Take(), "");
    setup.ClickThreshold = 100;
    Send(Bit::kButtonHDG);
    machine.loop.Advance(150);
    EXPECT_EQ(Take(), "long256 ") << "the option counts at once";
}

TEST_F(MultiPanelDeviceTest, SecondButtonTakesOverTheTime) {
    Send(Bit::kButtonAP);
    machine.loop.Advance(400);
    Send(Bit::kButtonAP | Bit::kButtonVS);
    machine.loop.Advance(400);
    Send(Bit::kButtonVS);
    EXPECT_EQ(Take(), "click8388608 ");
    machine.loop.Advance(400);
    EXPECT_EQ(Take(), "") << "the click ended the watch for both";
}

TEST_F(MultiPanelDeviceTest, LeversAndSelector) {
    Send(Bit::kFlapsUp | Bit::kAutoThrottleArm | Bit::kSelectorHDG);
    EXPECT_EQ(Take(), "sel8<0 flapsup ARM ");
    EXPECT_EQ(panel->OnScreen.shpFlapsLever.Top, 780);
    EXPECT_EQ(panel->OnScreen.shpATLever.Left, 8580);
    EXPECT_EQ(panel->OnScreen.labUpperMode.Caption.Get(), "HDG");
    Send(Bit::kFlapsDown | Bit::kSelectorALT);
    EXPECT_EQ(Take(), "sel1<8 flapsdown OFF ");
    EXPECT_EQ(panel->OnScreen.shpFlapsLever.Top, 1140);
    EXPECT_EQ(panel->OnScreen.labLowerMode.Caption.Get(), " VS");
    Send(0);
    EXPECT_EQ(Take(), "sel0<1 ");
    EXPECT_EQ(panel->OnScreen.shpFlapsLever.Top, 960);
    EXPECT_EQ(panel->OnScreen.labLowerMode.Caption.Get(), " VS") << "no position keeps the labels";
}

TEST_F(MultiPanelDeviceTest, PointersAndTrimBarGoRound) {
    auto& screen = panel->OnScreen;
    Send(Bit::kSelectorIAS);
    EXPECT_EQ(screen.SelectorSign.X2, 840 - 483);
    EXPECT_EQ(screen.SelectorSign.Y2, 1020 - 129);
    Pulse(Bit::kKnobClockwisePulse, 2 * 6);
    EXPECT_EQ(screen.RotarySign.X2, 7110 + 500) << "90 degrees";
    machine.loop.Advance(300);
    Pulse(Bit::kKnobCounterClockwisePulse, 2 * 12);
    EXPECT_EQ(screen.RotarySign.X2, 7110 - 500);
    const int32_t start = screen.lineTrim.Y1;
    Pulse(Bit::kTrimUpPulse, 2 * 8);
    EXPECT_EQ(screen.lineTrim.Y1, 2340);
    machine.loop.Advance(300);
    Pulse(Bit::kTrimDownPulse, 2 * 8);
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
    panel->WriteDisplay("350", "-700", uint8_t{0x81});
    panel->WriteDisplay();
    const Report shown = {0, 10, 10, 3, 5, 0, 10, 14, 7, 0, 0, 0x81, 0};
    EXPECT_EQ(device.featureReports, std::vector<Report>{shown});
    panel->WriteDisplay({}, {}, {}, true);
    panel->TurnOffDisplay();
    panel->TurnOffDisplay();
    const Report dark = {0, 15, 15, 15, 15, 15, 15, 15, 15, 15, 15, 0, 0};
    EXPECT_EQ(device.featureReports, (std::vector<Report>{shown, shown, dark, dark}));
    EXPECT_EQ(panel->OnScreen.labUpperValue.Caption.Get(), "350") << "the labels stay";
    panel->WriteDisplay("350", "-700", uint8_t{0x81});
    EXPECT_EQ(device.featureReports.back(), shown) << "the same texts bring it back";
}

TEST_F(MultiPanelDeviceTest, HeldButtonStaysRedUntilItsRelease) {
    Send(Bit::kButtonAP);
    panel->WriteDisplay({}, {}, uint8_t{0x03});
    EXPECT_EQ(ButtonColor(0), kRed);
    EXPECT_EQ(ButtonColor(1), kYellow);
    Send(0);
    EXPECT_EQ(ButtonColor(0), kYellow);
    panel->WriteDisplay({}, {}, uint8_t{0});
    EXPECT_EQ(ButtonColor(0), kWhite);
}

TEST_F(MultiPanelDeviceTest, PositionsAreReadFromTheDevice) {
    device.positions = {0, 0x10, 0, 0};
    panel->GetPositions();
    EXPECT_EQ(Take(), "sel16<0 ");
    machine.hid.Refuse(HidCall::GetFeature, 1);
    panel->GetPositions();
    EXPECT_EQ(Take(), "sel0<0 ") << "nothing read is no position";
    Send(0);
    EXPECT_EQ(Take(), "") << "the last report is still what reports are compared with";
}

TEST_F(MultiPanelDeviceTest, SplashLetsReportsIn) {
    device.featureReports.clear();
    machine.loop.After(150, [this] { device.SendReport({0, 0x08, 0, 0}); });
    panel->Splash();
    EXPECT_EQ(Take(), "sel8<0 ");
    ASSERT_GE(device.featureReports.size(), 12U);
    EXPECT_EQ(device.featureReports[1], (Report{0, 10, 10, 10, 0, 10, 10, 10, 10, 10, 10, 1, 0}));
    EXPECT_EQ(machine.clock.Elapsed(), 1000U);
}

TEST_F(MultiPanelDeviceTest, EndTurnsOffStopsAndCloses) {
    device.SendReport({0, 0x08, 0, 0});
    panel.reset();
    EXPECT_EQ(device.featureReports.back()[1], 15);
    EXPECT_EQ(machine.deckhub.ReadingCount(), 0);
    EXPECT_EQ(machine.hid.OpenCount(), 0U);
    EXPECT_EQ(machine.loop.TimerCount(), 0U);
    EXPECT_EQ(Take(), "sel8<0 ") << "what had come in was still taken";
}

}  // namespace
