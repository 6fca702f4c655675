#include "panels/switch/ctlSwitchPanel.h"
#include "tests/panels/DeviceTest.h"

namespace {

using Colors = std::array<Color, 3>;  // of the nose, the left and the right gear
constexpr Color kGreen = 0x00FF00, kRed = 0x0000FF, kYellow = 0x00FFFF, kWhite = 0xFFFFFF;

// The bits of the state word, as the panel sends them.
constexpr int32_t kOff = 0x002000, kR = 0x004000, kL = 0x008000, kBoth = 0x000001,
                  kStart = 0x000002;
constexpr int32_t kBat = 0x010000, kPitot = 0x200000, kStrobe = 0x000400;
constexpr int32_t kLeverUp = 0x000004, kLeverDown = 0x000008;
constexpr int kTopOfLeverUp = 720, kTopOfLeverDown = 1380;

constexpr Happening Reported{"Reported"}, Switch{"Switch"}, GearUp{"GearUp"}, GearDown{"GearDown"};
constexpr Happening Selector{"Selector"};  // new and old position
constexpr Happening Picture{"Picture"};  // toggles, right and down of the needle, top of the lever
constexpr Happening Lights{"Lights"};    // how many reports of the lights there were

// All switches are told in the order of the panel, BAT to LANDING, and are as in "0110...".
std::string AllSwitches(const std::string& on) {
    std::string text;
    for (size_t i = 0; i < 13; ++i)
        text += Switch(i < 8 ? 0x010000 << i : 0x000100 << (i - 8), on.at(i) == '1');
    return text;
}

struct SwitchPanelDeviceTest : DeviceTest<ctlSwitchPanel, PanelKind::Switch> {
    SwitchPanelDeviceTest() {
        panel->RawInput.Connect([this](auto...) { told += Reported(); });
        Listen(panel->SwitchChange, Switch);
        Listen(panel->SelectorChange, Selector);
        Listen(panel->GearUp, GearUp);
        Listen(panel->GearDown, GearDown);
        PlugIn();
    }
    std::string Drawn() {
        std::string toggles;
        for (const Shape& toggle : panel->OnScreen.shpToggles)
            toggles += toggle.Top == 300 ? '1' : toggle.Top == 720 ? '0' : '?';
        const Line& needle = panel->OnScreen.lineSelector;
        return Picture(toggles, needle.X2 - needle.X1, needle.Y2 - needle.Y1,
                       int{panel->OnScreen.picGear.Top});
    }
    Colors DrawnLights() {
        const auto& lights = panel->OnScreen.shpGearLights;
        return {lights[0].FillColor, lights[1].FillColor, lights[2].FillColor};
    }
};

TEST_F(SwitchPanelDeviceTest, FirstReportTellsEverythingAsIfItHadJustChanged) {
    Send(0x55555C, 0x55555C);  // R, every other switch, and the lever in both positions
    ExpectHeard(Reported() + Selector(kR, 0) + AllSwitches("1010101010101") + GearDown() +
                GearUp() + Reported());
    EXPECT_EQ(Drawn(), Picture("1010101010101", -509, -509, kTopOfLeverUp));
    Send(0xAA8AA0);  // L, the other switches
    ExpectHeard(Reported() + Selector(kL, kR) + AllSwitches("0101010101010"));
    EXPECT_EQ(Drawn(), Picture("0101010101010", 0, -720, kTopOfLeverUp));
    EXPECT_EQ(DrawnLights(), (Colors{kWhite, kWhite, kWhite}));
}

TEST_F(SwitchPanelDeviceTest, LaterReportsTellWhatChangesInTheOrderOfThePanel) {
    Send(kOff), ExpectHeard(Reported() + Selector(kOff, 0) + AllSwitches("0000000000000"));
    EXPECT_EQ(Drawn(), Picture("0000000000000", -695, -186, kTopOfLeverUp));
    Send(kOff | 0x0000F0), ExpectHeard(Reported(), "bits without a meaning");
    Send(kOff | kLeverUp | kLeverDown, kOff);
    ExpectHeard(Reported() + GearDown() + GearUp() + Reported());
    Send(kOff | kLeverUp, kOff | kLeverUp | kLeverDown, kOff | kLeverDown);
    ExpectHeard(Reported() + GearUp() + Reported() + GearDown() + Reported());
    const int32_t switches = kPitot | kStrobe;
    Send(kBoth | kBat | switches | kLeverDown, kBoth | kBat | switches | kLeverDown);
    ExpectHeard(Reported() + Selector(kBoth, kOff) + Switch(kBat, true) + Switch(kPitot, true) +
                Switch(kStrobe, true) + Reported());
    EXPECT_EQ(Drawn(), Picture("1000010000100", 413, -590, kTopOfLeverDown));
    Send(switches | kLeverDown);
    ExpectHeard(Reported() + Selector(0, kBoth) + Switch(kBat, false), "between two positions");
    EXPECT_EQ(Drawn(), Picture("0000010000100", 0, -720, kTopOfLeverDown));
    Send(kStart | switches | kLeverDown), ExpectHeard(Reported() + Selector(kStart, 0));
    EXPECT_EQ(Drawn(), Picture("0000010000100", 677, -246, kTopOfLeverDown));
    EXPECT_EQ(DrawnLights(), (Colors{kWhite, kWhite, kWhite}));
}

TEST_F(SwitchPanelDeviceTest, LightsAreSentOnEachCallAndShownInThePicture) {
    for (int time = 0; time < 2; ++time) panel->ChangeLights(kYellow, kGreen, kRed);
    const Report shown = {0x00, 0x2B};  // 0x09 nose yellow, 0x02 left green, 0x20 right red
    EXPECT_EQ(Written(), (Reports{shown, shown}));
    EXPECT_EQ(DrawnLights(), (Colors{kYellow, kGreen, kRed}));
    panel->ChangeLights({}, kWhite, kYellow);
    EXPECT_EQ(Written(), (Reports{{0x00, 0x24}})) << "the right one alone";
    EXPECT_EQ(DrawnLights(), (Colors{kYellow, kWhite, kYellow})) << "not given, not shown";
    panel->ChangeLights(0x00FF01, kRed, {});
    EXPECT_EQ(Written(), (Reports{{0x00, 0x10}})) << "the left one alone";
    EXPECT_EQ(DrawnLights(), (Colors{kWhite, kRed, kYellow}));
    EXPECT_EQ(panel->OnScreen.picGear.Top, kTopOfLeverUp);
}

TEST_F(SwitchPanelDeviceTest, SplashWaitsBehindEachStepAndTheEndIsDark) {
    Send(0), Heard(), Written();
    for (uint32_t end = 99; end < 1000; end += 100)
        machine.loop.After(end, [&] { told += Lights(device.featureReports.size()); });
    machine.loop.After(450, [this] { Post(kLeverUp); });
    panel->Splash();
    ExpectHeard(Lights(1) + Lights(2) + Lights(3) + Lights(4) + Reported() + GearUp() + Lights(5) +
                Lights(6) + Lights(7) + Lights(8) + Lights(9));
    const Reports steps = {
        {0x00, 0x01}, {0x00, 0x02}, {0x00, 0x04},  // green: nose, left, right
        {0x00, 0x09}, {0x00, 0x12}, {0x00, 0x24},  // yellow, which is both
        {0x00, 0x08}, {0x00, 0x10}, {0x00, 0x20},  // red
        {0x00, 0x00},                              // dark
    };
    EXPECT_EQ(Written(), steps);
    WaitMs(100), ExpectHeard(Lights(0), "and no longer");
    panel.reset();
    EXPECT_EQ(Written(), (Reports{{0x00, 0x00}}));
}

}  // namespace
