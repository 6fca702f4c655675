#include <gtest/gtest.h>
#include <sstream>

#include "panels/radio/ctlRadioPanel.h"
#include "platform/virtual/VirtualPlatform.h"
#include "toolkit/Form.h"
#include "toolkit/HeadlessUi.h"

namespace {

struct RadioPanelDeviceTest : testing::Test {
    VirtualPlatform machine;
    HeadlessUi ui;
    Form form{ui};
    cSetupHolder setup{machine.ini, machine.files, machine.registry, "C:\\Orvo"};
    VirtualDevice& device = machine.bus.Add(0x06A3, 0x0D05, "radio");
    DeviceServices services{machine.clock, machine.loop, machine.hid, machine.deckhub, setup};
    ctlRadioPanel panel{form, services};
    RadioPanelPicture::Side &upper = panel.OnScreen.At(1), &lower = panel.OnScreen.At(2);
    const std::string &speed1 = upper.labSpeed.Caption, &speed2 = lower.labSpeed.Caption;
    const std::string dark = "00" + std::string(44, 'f');
    std::ostringstream log;  // events and feature reports, in hexadecimal

    RadioPanelDeviceTest() {
        const auto tell = [this](auto& event, const char* name) {
            event.Connect([this, name](auto... numbers) {
                log << name << std::hex;
                ((log << numbers << ' '), ...);
            });
        };
        tell(panel.ButtonClick, "C");
        tell(panel.ButtonLongClick, "L");
        tell(panel.ButtonDown, "D");
        tell(panel.ButtonUp, "U");
        tell(panel.RotaryUp, "+");
        tell(panel.RotaryDown, "-");
        tell(panel.SelectorChange, "s");
        setup.ClickThreshold = 510;
        panel.Connect("radio");
        EXPECT_EQ(Play("0"), "s1 0 0 s2 0 0 ");
    }
    // "+9" waits, "?" logs the speeds, "g" gets the positions, else reports; with commas at once.
    std::string Play(const std::string& script = "") {
        std::istringstream words(script);
        for (std::string word; words >> word; machine.loop.RunPending()) {
            if (word == "g") panel.GetPositions();
            if (word == "?") log << speed1 << '/' << speed2 << ' ';
            if (word[0] == '+') machine.loop.Advance(static_cast<uint32_t>(std::stoi(word)));
            for (char* at = word.data(); std::isxdigit(*at); at += *at == ',') {
                const auto state = std::strtoul(at, &at, 16);
                const auto byte = [=](int n) { return static_cast<uint8_t>(state >> n); };
                device.SendReport({0, byte(16), byte(8), byte(0)});
            }
        }
        for (const auto& report : std::exchange(device.featureReports, {}))
            for (const int byte : report) log << std::hex << byte / 16 << byte % 16;
        return std::exchange(log, {}).str();
    }
};

TEST_F(RadioPanelDeviceTest, SelectorsAreToldAndShownAndReadFromTheDevice) {
    panel.SelectorChange.Connect([this](int side, int, int) {
        const Line &line1 = upper.lineSelector, &line2 = lower.lineSelector;
        if (side == 2) log << std::dec << line1.X2 - 1080 << ',' << line2.Y2 - line2.Y1 << ' ';
    });
    EXPECT_EQ(Play("10000 20100 40200 80400 100800 201000 402000"),
              "s1 10000 0 s1 20000 10000 s2 100 0 -246,-315 s1 40000 20000 s2 200 100 -378,-130 "
              "s1 80000 40000 s2 400 200 -380,124 s1 100000 80000 s2 800 400 -302,262 s1 200000 "
              "100000 s2 1000 800 -150,371 s1 400000 200000 s2 2000 1000 104,386 ");
    device.positions = {0x01, 0x81, 0xC0, 0xFF};
    machine.hid.Refuse(HidCall::GetFeature, 1);
    EXPECT_EQ(Play("g g 2000"), "s1 0 0 s2 0 0 0,-400 s1 10000 0 s2 800000 0 0,-400 s1 0 400000 ");
}

TEST_F(RadioPanelDeviceTest, DisplaysShowTheEndsOfTextsAndOnlyChangesAreSent) {
    const std::array<std::string, 5> cases[] = {
        {"118.02", "12.", " . . .", "1 123", "0101d80002ffffff01d2ffffdfdfdf01ff010203"},
        {"1234567", "", ".", "0345,3", "0304050607ffffffffffffffffffff000304d503"},
        {"-9.x", "1.23456", ".6..7", "8,9:/", "ffffffd9ff0203040506ffffffd607ffd809ffff"}};
    for (const auto& [active1, standby1, active2, standby2, digits] : cases) {
        panel.WriteDisplay(active1, standby1, active2, standby2);
        EXPECT_EQ(Play(), "00" + digits + "0000");
    }
    const std::string &label = upper.labActive.Caption, &last = lower.labStandby.Caption;
    EXPECT_EQ(label + last, "-9.x8.9:/");
    for (int time = 0; time < 3; ++time, panel.TurnOffDisplay())
        panel.WriteDisplay({}, "1.23456", {}, "8,9:/");
    panel.TurnOffDisplay();
    const std::string again = "00ffffffffff0203040506ffffffffffffd809ffffffff";
    EXPECT_EQ(label + last + Play(), dark + again + dark + again + dark + dark);
}

TEST_F(RadioPanelDeviceTest, SplashLetsAZeroRunRoundAndTheEndIsDark) {
    machine.loop.After(1, [this] { log << machine.clock.Elapsed() << ' '; });
    panel.Splash();
    std::string wanted = "30 ";
    for (size_t at : {10, 9, 8, 7, 6, 5, 4, 3, 2, 1, 11, 12, 13, 14, 15, 16, 17, 18, 19, 20})
        wanted += std::string(dark).replace(2 * at, 2, "00").replace(42, 4, "0000");
    EXPECT_EQ(Play(), wanted + dark);
    EXPECT_EQ(machine.clock.Elapsed(), 1200U);
    ctlRadioPanel(form, services).Connect("radio");
    EXPECT_EQ(Play(), dark) << "the end of a panel";
}

TEST_F(RadioPanelDeviceTest, TwoPulsesMakeAStepAndTurnTheRing) {
    EXPECT_EQ(Play("5,0 +200 a,0 +200 50,0 +200 a0,0 +5000"), "");
    EXPECT_EQ(Play("5,0 +200 a,0 +200 50,0 +200 a0,0"), "+0 1 +1 1 -0 1 -1 1 +2 1 +3 1 -2 1 -3 1 ");
    EXPECT_EQ(Play("+200 ff,0,ff,0"), "+0 1 -0 1 +1 1 -1 1 +2 1 -2 1 +3 1 -3 1 ");
    EXPECT_EQ(Play("+200 1 +199 0 1 +200 0"), "") << "the second comes off too late";
    EXPECT_EQ(Play("1,0 +200 4 8 4000 +200 0"), "+0 1 +1 1 D4000 C4000 U4000 ");
    for (int step = 0; step < 5; ++step) Play("81,0,81,0");
    const Line &in = upper.lineInnRot, &out = lower.lineOutRot;
    EXPECT_EQ((std::vector<int>{in.X2, out.X1, out.Y2}), (std::vector{8430, 7958, 2080}));
}

TEST_F(RadioPanelDeviceTest, SpeedsFollowThePulsesOfEachSide) {
    for (uint8_t side = 0; side < 4; ++side) panel.SetAcceleration(side, side == 2 ? 200 : 250);
    const std::array<std::string, 2> cases[] = {
        {"ff,ff,f3,f0,10,0", "1/20 +1 1 +3 14 "}, {"ff,ff,f7,f0,0", "1/10 +1 5 +3 a "},
        {"ff,ff,ff,31,0", "1/10 +1 5 +3 a "},     {"ff,ff,ff,13,0", "1/5 +1 a +3 5 "},
        {"ff,ff,7f,f,0", "1/5 +1 a +3 5 "},       {"ff,ff,3f,f,1,0", "1/1 +1 14 +3 1 "}};
    for (const auto& [pulses, steps] : cases) {
        Play("+2400 " + pulses + " +650");
        EXPECT_EQ(Play("? +150 4,0,4,0 +250 40,0,40,0"), steps) << pulses;
    }
    EXPECT_EQ(Play("+550 4,0,4,0 +1599 ? +1 ?"), "+1 14 20/1 1/1 ") << "a few pulses keep it";
}

TEST_F(RadioPanelDeviceTest, ClicksAndLongClicksAtTheThreshold) {
    EXPECT_EQ(Play("4000 +509 0 +600 8000 +510 0"), "D4000 C4000 U4000 D8000 U8000 ");
    EXPECT_EQ(Play("+15 4000 +515 0 +10"), "L8000 U8000 D4000 U4000 L4000 U4000 ");
    EXPECT_EQ(Play("4000 +400 c000 +400 8000 +1000 0"), "D4000 D8000 C4000 U4000 U8000 ");
    EXPECT_EQ(Play("4000 +400 c000 +525 8000"), "D4000 D8000 L8000 U4000 ");
    EXPECT_EQ(upper.shpSwitch.FillColor - lower.shpSwitch.FillColor, 0xFFFFFFU - 0x0000FFU);
}

// As when the simulator answers late: what counts is when a report came, not when it is taken.
TEST_F(RadioPanelDeviceTest, ABusyMomentLosesNoPulseAndMakesNoClickALongOne) {
    const auto releaseWhileBusy = [this] {
        machine.clock.Sleep(50);
        device.SendReport({0, 0, 0, 0});
        machine.clock.Sleep(600);
    };
    Play("1,0 1 +100");
    releaseWhileBusy();
    EXPECT_EQ(Play("+1"), "+0 1 ");
    Play("+2000 4000 +100");
    releaseWhileBusy();
    EXPECT_EQ(Play("+2000 4000 +610"), "C4000 U4000 D4000 L4000 ");
    Play("0 8000");
    for (int time = 0; time < 5; ++time, machine.loop.RunPending()) machine.clock.Sleep(150);
    EXPECT_EQ(Play(), "L8000 ") << "also where the loop is always late";
}

// As an action that sends a keystroke lets in what waits.
TEST_F(RadioPanelDeviceTest, ReportsThatComeWithinAnEventAreTakenOnce) {
    const auto letRun = [this](auto...) { machine.loop.Advance(600); };
    panel.SelectorChange.Connect(letRun);
    panel.RotaryUp.Connect(letRun);
    panel.ButtonClick.Connect(letRun);
    EXPECT_EQ(Play("10100,20100,40100"), "s1 10000 0 s2 100 0 s1 20000 10000 s1 40000 20000 ");
    EXPECT_EQ(Play("40101,40100,40101,40100,40101,40100,40101,40100"), "+0 1 +0 1 ");
    EXPECT_EQ(Play("44100,40100,44100 +2000"), "D4000 C4000 U4000 D4000 L4000 ");
    device.SendReport({0, 0x02, 0x41, 0});
    EXPECT_EQ(Play("g"), "s1 0 0 s2 0 0 U4000 U8000 s1 20000 40000 ");
}

TEST_F(RadioPanelDeviceTest, ABoxThatStandsWithinAnEventDoesNotHoldThePanelUp) {
    panel.ButtonDown.Connect([this](int32_t) {
        machine.loop.After(900, [this] { device.SendReport({0, 2, 0x40, 0}); });
        machine.loop.After(1100, [this] { device.SendReport({0, 1, 0x40, 0}); });
        machine.loop.Advance(2000);
        log << "closed ";
    });
    EXPECT_EQ(Play("4000"), "D4000 L4000 s1 20000 0 s1 10000 20000 closed ");
}

}  // namespace
