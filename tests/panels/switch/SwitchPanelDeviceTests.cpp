#include <gtest/gtest.h>
#include <sstream>

#include "bench/virtual/VirtualCockpit.h"

namespace {

struct SwitchPanelDeviceTest : testing::Test, VirtualCockpit {
    VirtualDevice& device = Plug(PanelKind::Switch);
    ctlSwitchPanel& panel = (Start(), Switch());
    std::ostringstream log;  // reports ("."), events and feature reports, in hexadecimal

    SwitchPanelDeviceTest() {
        panel.RawInput.Connect([this](auto...) { log << std::hex << '.'; });
        panel.SwitchChange.Connect([this](int bit, bool on) { log << "-+"[on] << bit << ' '; });
        panel.SelectorChange.Connect([this](int now, int old) { log << now << '/' << old << ' '; });
        panel.GearUp.Connect([this] { log << "up "; });
        panel.GearDown.Connect([this] { log << "down "; });
    }
    // Sends reports, as state words.
    std::string Play(const std::string& reports = "") {
        std::istringstream words(reports);
        for (int state = 0; words >> std::hex >> state; machine.loop.RunPending())
            device.SendReport({0, uint8_t(state >> 16), uint8_t(state >> 8), uint8_t(state)});
        for (const auto& report : std::exchange(device.featureReports, {}))
            for (const int byte : report) log << std::hex << byte / 16 << byte % 16;
        return std::exchange(log, {}).str();
    }
    // Switches, where the needle points, top of the lever, colours of the lights.
    std::string Picture() {
        const SwitchPanelPicture& shown = panel.OnScreen;
        const Line& hand = shown.lineSelector;
        std::ostringstream text;
        for (const Shape& toggle : shown.shpToggles)
            text << (toggle.Top == 300 ? '1' : toggle.Top == 720 ? '0' : '?');
        text << ' ' << hand.X2 - hand.X1 << ',' << hand.Y2 - hand.Y1 << ' ' << shown.picGear.Top;
        for (const Shape& light : shown.shpGearLights) text << std::hex << ' ' << light.FillColor;
        return text.str();
    }
};

TEST_F(SwitchPanelDeviceTest, FirstReportTellsEverythingAsIfItHadJustChanged) {
    EXPECT_EQ(Play("55555c 55555c"),
              ".4000/0 +10000 -20000 +40000 -80000 +100000 -200000 +400000 -800000 +100 -200 +400 "
              "-800 +1000 down up .");
    EXPECT_EQ(Picture(), "1010101010101 -509,-509 720 ffffff ffffff ffffff");
    EXPECT_EQ(Play("aa8aa0"),
              ".8000/4000 -10000 +20000 -40000 +80000 -100000 +200000 -400000 +800000 -100 +200 "
              "-400 +800 -1000 ");
    EXPECT_EQ(Picture(), "0101010101010 0,-720 720 ffffff ffffff ffffff");
}

TEST_F(SwitchPanelDeviceTest, LaterReportsTellWhatChangesInTheOrderOfThePanel) {
    EXPECT_EQ(Play("2000"),
              ".2000/0 -10000 -20000 -40000 -80000 -100000 -200000 -400000 -800000 -100 -200 -400 "
              "-800 -1000 ");
    EXPECT_EQ(Picture(), "0000000000000 -695,-186 720 ffffff ffffff ffffff");
    EXPECT_EQ(Play("20f0 200c 2000 2004 200c 2008"), "..down up ..up .down .");
    EXPECT_EQ(Play("210409 210409"), ".1/2000 +10000 +200000 +400 .");
    EXPECT_EQ(Picture(), "1000010000100 413,-590 1380 ffffff ffffff ffffff");
    EXPECT_EQ(Play("200408"), ".0/1 -10000 ") << "between two positions";
    EXPECT_EQ(Picture(), "0000010000100 0,-720 1380 ffffff ffffff ffffff");
    EXPECT_EQ(Play("20040a"), ".2/0 ");
    EXPECT_EQ(Picture(), "0000010000100 677,-246 1380 ffffff ffffff ffffff");
}

TEST_F(SwitchPanelDeviceTest, LightsAreSentOnEachCallAndShownInThePicture) {
    for (int time = 0; time < 2; ++time) panel.ChangeLights(0x00FFFF, 0x00FF00, 0x0000FF);
    EXPECT_EQ(Play() + Picture().substr(20), "002b002b 720 ffff ff00 ff");
    panel.ChangeLights({}, 0xFFFFFF, 0x00FFFF);
    EXPECT_EQ(Play() + Picture().substr(20), "0024 720 ffff ffffff ffff") << "not given, not shown";
    panel.ChangeLights(0x00FF01, 0x0000FF, {});
    EXPECT_EQ(Play() + Picture().substr(20), "0010 720 ffffff ff ffff");
}

TEST_F(SwitchPanelDeviceTest, SplashWaitsBehindEachStepAndTheEndIsDark) {
    Play("0");
    for (uint32_t end = 99; end < 1000; end += 100)
        machine.loop.After(end, [&] { log << device.featureReports.size(); });
    machine.loop.After(450, [this] { device.SendReport({0, 0, 0, 4}); });
    panel.Splash();
    EXPECT_EQ(Play(), "1234.up 567890001000200040009001200240008001000200000");
    machine.loop.Advance(100);
    EXPECT_EQ(Play(), "0") << "and no longer";
    program.reset();
    EXPECT_EQ(Play(), "0000");
}

}  // namespace
