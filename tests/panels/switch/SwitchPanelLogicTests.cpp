#include <array>
#include <functional>
#include <vector>

#include "panels/switch/SwitchNumber.h"
#include "tests/panels/PanelFlight.h"

namespace {

using namespace SwitchNumber;
using enum ActionKind;

constexpr bool On = true, Off = false;
constexpr Happening Lights{"Lights"};  // green: 1 nose, 2 left, 4 right; red: 8, 16, 32
constexpr int32_t kRightClick = INT32_MIN;

constexpr uint32_t kBatteries = 0x3102, kAvionicsSwitch = 0x3103, kFuelPumps = 0x3125;
constexpr uint32_t kPitotHeat = 0x029C, kGearHandle = 0x0BE8, kLights = 0x0D0C;
constexpr uint32_t kNoseGear = 0x0BEC, kRightGear = 0x0BF0, kLeftGear = 0x0BF4;
constexpr uint32_t kRetractable = 0x060C;
using PerEngine = std::array<uint32_t, 4>;
constexpr PerEngine kMagnetos = {0x0892, 0x092A, 0x09C2, 0x0A5A};
constexpr PerEngine kAlternators = {0x3B78, 0x3AB8, 0x39F8, 0x3938};
constexpr PerEngine kDeIcers = {0x08B2, 0x094A, 0x09E2, 0x0A7A};
constexpr PerEngine kCowlFlaps = {0x37F0, 0x3730, 0x3670, 0x35B0};

// The same for each engine, one behind the other.
std::string Each(const PerEngine& offsets, auto wrote, auto value) {
    std::string text;
    for (const uint32_t offset : offsets) text += wrote(offset, value);
    return text;
}

// A session with one Switch Panel, whose switches are thrown by their numbers.
struct SwitchPanelLogicTest : PanelFlight {
    VirtualDevice& device = Plug(PanelKind::Switch);
    int32_t position = kSelectorOff;

    SwitchPanelLogicTest() {
        Start("Splash=0\r\nEngineStarterMode=1\r\n");
        Fly();
    }
    void Fly(const std::string& keys = "") {
        FlyWith("[Common]\n" + keys + "\n[SwitchPanel1]\n" + keys);
    }
    // What the pilot does.
    void Throw(int32_t number, bool on) { SwitchLogic().SwitchChange(number, on); }
    void MoveSelectorTo(int32_t to) {
        SwitchLogic().SelectorChange(to, std::exchange(position, to));
    }
    void LeverDown() { Switch().GearDown.Raise(); }
    void LeverUp() { Switch().GearUp.Raise(); }

    void TellPiledUp() override {
        PanelFlight::TellPiledUp();
        for (const auto& report : std::exchange(device.featureReports, {}))
            told += Lights(report[1]);
    }
    // 16383 is down, 0 up.
    void Gear(int nose, int left, int right) {
        Simulator<int32_t>(kNoseGear, nose), Simulator<int32_t>(kLeftGear, left);
        Simulator<int32_t>(kRightGear, right);
    }
};

std::string WroteLights(std::initializer_list<int> words) {
    std::string text;
    for (const int word : words) text += WroteWord(kLights, word);
    return text;
}

TEST_F(SwitchPanelLogicTest, FirstReportBringsTheSimulatorIntoLine) {
    const auto all = [](int magneto, bool on) {
        return Each(kMagnetos, WroteWord, magneto) + WroteByte(kBatteries, on) +
               Each(kAlternators, WroteDword, on) + WroteByte(kAvionicsSwitch, on) +
               WroteByte(kFuelPumps, on ? 0x0F : 0) + Each(kDeIcers, WroteWord, on) +
               WroteByte(kPitotHeat, on) + Each(kCowlFlaps, WroteDouble, on ? 0.0 : 1.0);
    };
    device.SendReport({0x00, 0xFF, 0x5F, 0x08});  // the selector at R, all switches, lever down
    ExpectSent(all(1, On) + WroteLights({0x20, 0x22, 0x23, 0x33, 0x3B, 0x3F}) +
               WroteDword(kGearHandle, 16383));
    device.SendReport({0x00, 0x00, 0x00, 0x06});  // START, lever up
    ExpectSent(all(4, Off) + WroteLights({0x1F, 0x1D, 0x1C, 0x0C, 0x04, 0x00}) +
               WroteDword(kGearHandle, 0));
    const std::pair<std::array<uint8_t, 2>, int> positions[] = {
        {{0x20, 0x04}, 0}, {{0x80, 0x04}, 2}, {{0x00, 0x05}, 3}};  // OFF, L, BOTH
    for (const auto& [bits, magneto] : positions) {
        device.SendReport({0x00, 0x00, bits[0], bits[1]});
        ExpectSent(Each(kMagnetos, WroteWord, magneto));
    }
    for (const int none : {0, 1, 5, 20, 21}) Throw(none, On);
    Throw(19, Off), MoveSelectorTo(0);
    ExpectSent(kNothing, "none of these is a switch, or a position");
}

TEST_F(SwitchPanelLogicTest, OptionsHoldTheirSwitchesToTheSelectedEngine) {
    using Sents = std::array<std::string, 4>;  // with the first engine selected to the fourth
    const auto one = [](const PerEngine& at, auto wrote, auto value) -> Sents {
        return {wrote(at[0], value), wrote(at[1], value), wrote(at[2], value), wrote(at[3], value)};
    };
    const auto pumps = [](const PerEngine& bits) -> Sents {
        return {WroteByte(kFuelPumps, bits[0]), WroteByte(kFuelPumps, bits[1]),
                WroteByte(kFuelPumps, bits[2]), WroteByte(kFuelPumps, bits[3])};
    };
    const struct {
        std::string option;
        std::function<void()> act;
        Sents sent;
    } cases[] = {
        {"StarterSelector", [&] { MoveSelectorTo(kSelectorBoth); }, one(kMagnetos, WroteWord, 3)},
        {"AltSwitch", [&] { Throw(kAlt, On); }, one(kAlternators, WroteDword, 1)},
        {"FuelPump", [&] { Throw(kFuelPump, On); }, pumps({0xA5, 0xA7, 0xA5, 0xAD})},
        {"FuelPump", [&] { Throw(kFuelPump, Off); }, pumps({0xA4, 0xA5, 0xA1, 0xA5})},
        {"DeIce", [&] { Throw(kDeIce, Off); }, one(kDeIcers, WroteWord, 0)},
        {"CowlFlaps", [&] { Throw(kCowl, Off); }, one(kCowlFlaps, WroteDouble, 1.0)},
    };
    for (const auto& test : cases)
        for (uint8_t engine = 1; engine <= 4; ++engine) {
            Simulator(kFuelPumps, 0xA5), Fly("Single" + test.option + "=1");
            program->Session.EngineSelected = engine;
            test.act();
            EXPECT_EQ(Sent(), test.sent[engine - 1U]) << test.option << int{engine};
        }
}

TEST_F(SwitchPanelLogicTest, LightSwitchesChangeTheWordAsItIsJustThen) {
    Simulator(kLights, 0x8014);
    Throw(kPanel, On), Throw(kBeacon, On), Throw(kPanel, Off), Throw(kBeacon, Off);
    ExpectSent(WroteLights({0x8034, 0x8036, 0x8016, 0x8014}));
    Simulator(kLights, 0x15), Throw(kNav, On), Throw(kStrobe, On), Throw(kLanding, On);
    Simulator(kLights, 0x3A), Throw(kNav, Off), Throw(kLanding, Off), Simulator(kLights, 0xFFFF);
    Throw(kStrobe, Off), ExpectSent(WroteLights({0xFFEF}), "the others are as they should be");
    machine.ipc.AnswerWith(0, 1), Simulator(kLights, 0);
    Throw(kPanel, On), ExpectSent(kNothing, "nothing is known of the other lights");
}

TEST_F(SwitchPanelLogicTest, AddOnsLightsAreClickedFromWhereTheyStand) {
    Fly("SpecialMode=ngx");
    constexpr int32_t L = kLeftClick, R = kRightClick;
    using Clicks = std::vector<int32_t>;
    struct Thrown {
        Clicks on, off;
    };
    const struct {
        int32_t number;
        uint32_t offset;
        int32_t control;
        Thrown clicks[4];  // by the position that the add-on's switch has
    } cases[] = {
        {kPanel, 0x642F, 69890, {{{L, L}, {L}}, {{L}, {}}, {{}, {R}}, {{}, {}}}},
        {kBeacon, 0x6501, 69756, {{{L}, {}}, {{}, {L}}, {{}, {}}, {{}, {}}}},
        {kNav, 0x6500, 69755, {{{}, {R}}, {{L}, {}}, {{}, {}}, {{}, {}}}},
        {kStrobe, 0x6500, 69755, {{{R, R}, {}}, {{R}, {}}, {{}, {L}}, {{}, {}}}},
        {kTaxi, 0x64FA, 69749, {{{L}, {}}, {{}, {L}}, {{}, {}}, {{}, {}}}},
        {kLanding, 0, 69742, {{{L}, {R}}, {{L}, {R}}, {{L}, {R}}, {{L}, {R}}}},
    };
    for (const auto& test : cases)
        for (const size_t at : {0, 1, 2, 3})
            for (const bool on : {On, Off}) {
                for (const uint32_t place : {0x642F, 0x6501, 0x6500, 0x64FA, 0x0D0C})
                    Simulator<uint8_t>(place, uint8_t((at + (place != test.offset)) % 4));
                std::string sent;
                for (const int32_t click : on ? test.clicks[at].on : test.clicks[at].off)
                    sent += SentControl(test.control, click);
                Throw(test.number, on);
                WaitMs(1010);  // a second click comes a second later
                EXPECT_EQ(Sent(), sent + Waited(1010)) << test.number << " from " << at;
            }
    machine.ipc.AnswerWith(0, 1);
    Throw(kBeacon, On), ExpectSent(kNothing, "the position isn't known");
}

TEST_F(SwitchPanelLogicTest, SecondClickComesASecondLaterAndAllElseGoesOnMeanwhile) {
    Fly("SpecialMode=ngx\nSwitchGEARDOWNOn=VKey,1,0,0\nSwitchGEARUPOn=None\nSwitchNAVOn=None\n"
        "SwitchTAXIOn=VKey,9,0,0");
    const std::string panelLight = SentControl(69890, kLeftClick);
    const std::string gearDown = SentControl(70087, kLeftClick);
    const std::string gearUp = SentControl(70087, kRightClick);
    Throw(kNav, On), Throw(kTaxi, On);
    ExpectSent(Typed(9), "the lights' own actions count, not the lever's");
    Throw(kPanel, On), WaitMs(500), LeverDown(), Throw(kBat, On), WaitMs(490);
    WaitMs(20), WaitMs(480), WaitMs(20);
    ExpectSent(panelLight + Waited(500) + gearDown + WroteByte(kBatteries, 1) + Waited(490) +
               panelLight + Waited(20) + Waited(480) + gearDown + Waited(20));
    LeverUp(), WaitMs(1100), Throw(kPanel, On), LeverDown(), WaitMs(500), Reconnect(), WaitMs(1000);
    ExpectSent(gearUp + Waited(1100) + panelLight + gearDown + Waited(500) + Lights(0) +
               Waited(1000));
    Fly("SpecialMode=maddog"), Simulator(kLights, 0);
    Throw(kNav, On), LeverUp(), ExpectSent(WroteLights({0x01}) + WroteDword(kGearHandle, 0));
}

TEST_F(SwitchPanelLogicTest, BoundActionsGoOutInsteadOfTheBuiltInBehaviour) {
    for (const ActionKind kind : {VKey, None}) {
        std::string keys;
        for (int n = 1; n <= 20; ++n) {
            SwitchLogic().SPActions->SetSwitchActions(n, 1, {kind, uint8_t(n), 0, 0});
            SwitchLogic().SPActions->SetSwitchActions(n, 0, {kind, uint8_t(100 + n), 0, 0});
        }
        for (int n = kBat; n <= kLanding; ++n) {
            Throw(n, On), Throw(n, Off);
            keys += Typed(n) + Typed(100 + n);
        }
        for (const int32_t to : {+kSelectorR, 0, +kSelectorStart, +kSelectorOff})
            MoveSelectorTo(to);
        LeverDown(), LeverUp();
        for (const int key : {101, 2, 102, 5, 105, 1, 20, 19}) keys += Typed(key);
        ExpectSent(kind == VKey ? keys : kNothing);
    }
}

TEST_F(SwitchPanelLogicTest, VirtualButtonsOfSwitchesAreDownForAWhile) {
    Fly("SwitchBATOn=VButton,64,1\nSwitchSELOFFOff=VButton,64,2\nSwitchSELROn=VButton,64,3");
    Throw(kBat, On), Throw(kAvionics, On), WaitMs(40), WaitMs(20);
    ExpectSent(Pressed(1) + WroteByte(kAvionicsSwitch, 1) + Waited(40) + Released(1) + Waited(20));
    MoveSelectorTo(kSelectorR), WaitMs(40), WaitMs(20), WaitMs(30), WaitMs(20), MoveSelectorTo(0);
    ExpectSent(Pressed(2) + Waited(40) + Released(2) + Pressed(3) + Waited(20) + Waited(30) +
               Released(3) + Waited(20));
    position = kSelectorOff;
    MoveSelectorTo(kSelectorR), ExpectSent(Pressed(2));
    machine.clock.Sleep(85), WaitMs(1), WaitMs(45), WaitMs(20);
    ExpectSent(Released(2) + Pressed(3) + Waited(1) + Waited(45) + Released(3) + Waited(20),
               "after a stutter the next one has its time");
}

TEST_F(SwitchPanelLogicTest, VirtualButtonOfTheLeverIsDownAsLongAsItStands) {
    Fly("SwitchGEARDOWNOn=VButton,64,1\nSwitchGEARUPOn=VButton,64,2\nSwitchGEARUPOff=VKey,3,0,0");
    LeverDown(), WaitMs(500), LeverUp(), WaitMs(500), LeverDown(), WaitMs(500);
    ExpectSent(Pressed(1) + ButtonsWrittenAsTheyWere() + Waited(500) + Pressed(2) + Released(1) +
               Waited(500) + Pressed(1) + Released(2) + Waited(500));
    Fly("SwitchGEARDOWNOn=VButton,64,3\nSwitchGEARUPOn=VButton,64,4"), LeverUp();
    ExpectSent(Pressed(4) + ButtonsWrittenAsTheyWere() + Released(1),
               "that of the profile before comes up as well");
    Fly("SwitchGEARDOWNOn=VButton,64,5\nSwitchGEARUPOn=VKey,65,1,97"), LeverUp(), LeverDown();
    ExpectSent(Released(4) + Pressed(5) + Typed(16), "a key lets the button go");
    Fly("SwitchGEARDOWNOn=VKey,65,0,98"), Fly("SwitchGEARDOWNOn=VButton,64,5");
    LeverDown(), ExpectSent(ButtonsWrittenAsTheyWere(), "it is down, and stays so");
}

TEST_F(SwitchPanelLogicTest, GearLightsShowARetractableGear) {
    constexpr int down = 16383;
    Gear(down, down, down), WaitMs(10), ExpectSent(Waited(10), "it is fixed");
    Simulator(kRetractable, 0x0100), SetTitle("Baron"), WaitMs(20), WaitMs(20);
    ExpectSent(Lights(0x07) + Waited(20) + Waited(20));
    const struct {
        int nose, left, right;
        std::string lights;
    } cases[] = {
        {down, 1, 0, Lights(0x11)},
        {down - 1, 0, down, Lights(0x0C)},
        {0, down, down + 0x10000, Lights(0x22)},
        {1, down + 1, down + 0x10000, Lights(0x38)},
        {0x7FFF, 0xFFFF, down + 0x10000, kNothing},
    };
    for (const auto& [nose, left, right, lights] : cases) {
        Gear(nose, left, right), WaitMs(10);
        EXPECT_EQ(Sent(), lights + Waited(10)) << nose;
    }
    Simulator(kBatteryMaster, 0), WaitMs(10), Simulator(kLeftGear, 0), WaitMs(10);
    ExpectSent(Lights(0) + Waited(10) + Waited(10), "dark without power");
    Simulator(kBatteryMaster, 0x0100), Simulator(kNoseGear, down), WaitMs(10);
    ExpectSent(Lights(0x21) + Waited(10));
    Reconnect(), WaitMs(20), Simulator(kLeftGear, down), WaitMs(10);
    ExpectSent(Lights(0) + Waited(20) + Lights(0x23) + Waited(10));
    Fly("RetractableGear=0"), WaitMs(10);
    Simulator(kRetractable, 0), SetTitle("Glider"), WaitMs(20);
    Simulator(0x3308, 7), Reconnect(), WaitMs(20);  // FS2004
    ExpectSent(Waited(10) + Lights(0) + Waited(20) + Lights(0) + Waited(20));
    Fly("RetractableGear=1"), ExpectSent(Lights(0x23), "the option counts on FS2004 only");
    Fly("RetractableGear=0"), WaitMs(10), Simulator(kRetractable, 1), SetTitle("Baron"), WaitMs(20);
    ExpectSent(Lights(0) + Waited(10) + Lights(0x23) + Waited(20));
}

}  // namespace
