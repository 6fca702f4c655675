#include <cstdio>

#include "tests/panels/TextPanelFlight.h"

namespace {

using enum ActionKind;

// A session with one Switch Panel, whose logic is driven directly.
struct SwitchPanelLogicTest : TextPanelFlight {
    VirtualDevice& device = Plug(PanelKind::Switch);
    int position = 1;
    // Sizes of what is written, and the doubles, of which only the low half is told elsewhere.
    ScopedConnection sizes = sim.Written.Connect([this](uint32_t at, auto bytes) {
        if (at == 0x330A || at == 0x3110 || at == 0x3340) return;
        if (bytes.size() == 8) told << ':' << sim.Get<double>(at);
        if (bytes.size() != 8) told << '/' << bytes.size();
    });

    SwitchPanelLogicTest() {
        base = std::hex;
        Start("Splash=0\r\nEngineStarterMode=1\r\n");
        Fly();
    }
    void Fly(const std::string& keys = "") {
        FlyWith("[Common]\n" + keys + "\n[SwitchPanel1]\n" + keys);
    }
    // What the user does: "@4" selector, "+6" and "-6" switches, "down" and "up" lever, "a=b" a
    // profile. "d0c:3f" is what the simulator has, "Baron" an aircraft, "again" a new session,
    // "~50" a time that goes by. Gives what has gone out, with the times and the lights.
    std::string Do(const std::string& acts) {
        std::istringstream in(acts);
        for (std::string word; in >> word;) {
            const int n = std::atoi(&word[1]);
            uint32_t at = 0, value = 0;
            if (std::sscanf(word.c_str(), "%x:%x", &at, &value) == 2)
                sim.Set<uint16_t>(at, uint16_t(value));
            if (word[0] == '+' || word[0] == '-') SwitchLogic().SwitchChange(n, word[0] == '+');
            if (word[0] == '@') SwitchLogic().SelectorChange(n, std::exchange(position, n));
            if (word == "down") SwitchLogic().GearDown();
            if (word == "up") SwitchLogic().GearUp();
            if (word == "again") LoseSimulator(), Connect();
            if (word.find('=') != word.npos) Fly(word);
            if (word == "Baron" || word == "Glider") SetTitle(word);
            if (word[0] == '~') machine.loop.Advance(uint32_t(n)), told << " ,";
            for (const auto& report : std::exchange(device.featureReports, {}))
                told << " L" << std::hex << int{report[1]} << std::dec;
        }
        return Sent();
    }
};

TEST_F(SwitchPanelLogicTest, FirstReportBringsTheSimulatorIntoLine) {
    device.SendReport({0, 0xFF, 0x5F, 0x08});
    EXPECT_EQ(Sent(),
              "892=1/2 92a=1/2 9c2=1/2 a5a=1/2 3102=1/1 3b78=1/4 3ab8=1/4 39f8=1/4 3938=1/4 "
              "3103=1/1 3125=f/1 8b2=1/2 94a=1/2 9e2=1/2 a7a=1/2 29c=1/1 37f0=0:0 3730=0:0 "
              "3670=0:0 35b0=0:0 d0c=20/2 d0c=22/2 d0c=23/2 d0c=33/2 d0c=3b/2 d0c=3f/2 be8=3fff/4");
    device.SendReport({0, 0x00, 0x00, 0x06});
    EXPECT_EQ(Sent(),
              "892=4/2 92a=4/2 9c2=4/2 a5a=4/2 3102=0/1 3b78=0/4 3ab8=0/4 39f8=0/4 3938=0/4 "
              "3103=0/1 3125=0/1 8b2=0/2 94a=0/2 9e2=0/2 a7a=0/2 29c=0/1 37f0=0:1 3730=0:1 "
              "3670=0:1 35b0=0:1 d0c=1f/2 d0c=1d/2 d0c=1c/2 d0c=c/2 d0c=4/2 d0c=0/2 be8=0/4");
    EXPECT_EQ(Do("+0 +1 +5 -19 +20 +21 @0"), "") << "none of these is a switch, or a position";
}

TEST_F(SwitchPanelLogicTest, OptionsHoldTheirSwitchesToTheSelectedEngine) {
    const std::array<std::string, 6> cases[] = {
        {"StarterSelector", "@4", "892=3/2", "92a=3/2", "9c2=3/2", "a5a=3/2"},
        {"AltSwitch", "+7", "3b78=1/4", "3ab8=1/4", "39f8=1/4", "3938=1/4"},
        {"FuelPump", "+9", "3125=a5/1", "3125=a7/1", "3125=a5/1", "3125=ad/1"},
        {"FuelPump", "-9", "3125=a4/1", "3125=a5/1", "3125=a1/1", "3125=a5/1"},
        {"DeIce", "-10", "8b2=0/2", "94a=0/2", "9e2=0/2", "a7a=0/2"},
        {"CowlFlaps", "-12", "37f0=0:1", "3730=0:1", "3670=0:1", "35b0=0:1"}};
    for (const auto& each : cases)
        for (uint8_t engine = 1; engine <= 4; ++engine) {
            Do("3125:a5 Single" + each[0] + "=1");
            program->Session.EngineSelected = engine;
            EXPECT_EQ(Do(each[1]), each[engine + 1U]);
        }
}

TEST_F(SwitchPanelLogicTest, LightSwitchesChangeTheWordAsItIsJustThen) {
    EXPECT_EQ(Do("d0c:8014 +13 +14 -13 -14"), "d0c=8034/2 d0c=8036/2 d0c=8016/2 d0c=8014/2");
    EXPECT_EQ(Do("d0c:15 +15 +16 +18 d0c:3a -15 -18 d0c:ffff -16"), "d0c=ffef/2");
    machine.ipc.AnswerWith(0, 1);
    EXPECT_EQ(Do("d0c:0 +13"), "") << "nothing is known of the other lights";
    machine.ipc.TimeOut(100);
    const uint64_t before = machine.clock.Elapsed();
    for (int number = 13; number <= 18; ++number) SwitchLogic().SwitchChange(number, true);
    EXPECT_LT(machine.clock.Elapsed() - before, 30000U) << "only one of them waits in vain";
}

// Clicks of the left and the right button, on and off, from each position of the add-on's switch.
TEST_F(SwitchPanelLogicTest, AddOnsLightsAreClickedFromWhereTheyStand) {
    Fly("SpecialMode=ngx");
    const std::tuple<int, uint32_t, std::string, std::string> cases[] = {
        {13, 0x642F, "69890", "LL,L,L,,,R,,,"}, {14, 0x6501, "69756", "L,,,L,,,,,"},
        {15, 0x6500, "69755", ",R,L,,,,,,"},    {16, 0x6500, "69755", "RR,,R,,,L,,,"},
        {17, 0x64FA, "69749", "L,,,L,,,,,"},    {18, 0, "69742", "L,R,L,R,L,R,L,R,"}};
    for (const auto& [number, offset, control, expected] : cases) {
        const std::string left = control + ":20000000", right = control + ":80000000";
        std::string seen;
        for (int at = 0; at < 8; ++at) {
            for (const uint32_t place : {0x642F, 0x6501, 0x6500, 0x64FA, 0x0D0C})
                sim.Set<uint8_t>(place, uint8_t((at / 2 + (place != offset)) % 4));
            std::istringstream in(Do("+-"[at % 2] + std::to_string(number) + " ~1010"));
            for (std::string word; in >> word;)
                seen += word == left ? "L" : word == right ? "R" : word;
        }
        EXPECT_EQ(seen, expected) << number;
    }
    machine.ipc.AnswerWith(0, 1);
    EXPECT_EQ(Do("+14"), "") << "the position isn't known";
}

TEST_F(SwitchPanelLogicTest, SecondClickComesASecondLaterAndAllElseGoesOnMeanwhile) {
    Fly("SpecialMode=ngx\nSwitchGEARDOWNOn=VKey,1,0,0\nSwitchGEARUPOn=None\nSwitchNAVOn=None\n"
        "SwitchTAXIOn=VKey,9,0,0");
    EXPECT_EQ(Do("+15 +17"), "9") << "the lights' own actions count, not the lever's";
    EXPECT_EQ(Do("+13 ~500 down +6 ~490 ~20 ~480 ~20"),
              "69890:20000000 , 70087:20000000 3102=1/1 , 69890:20000000 , , 70087:20000000 ,");
    EXPECT_EQ(Do("up ~1100 +13 down ~500 again ~1000"),
              "70087:80000000 , 69890:20000000 70087:20000000 , L0 ,");
    EXPECT_EQ(Do("SpecialMode=maddog d0c:0 +15 up"), "d0c=1/2 be8=0/4");
}

TEST_F(SwitchPanelLogicTest, BoundActionsGoOutInsteadOfTheBuiltInBehaviour) {
    for (const ActionKind kind : {VKey, None}) {
        std::ostringstream acts, keys;
        for (int n = 1; n <= 20; ++n) {
            SwitchLogic().SPActions->SetSwitchActions(n, 1, {kind, uint8_t(n), 0, 0});
            SwitchLogic().SPActions->SetSwitchActions(n, 0, {kind, uint8_t(100 + n), 0, 0});
            if (n > 5 && n < 19) acts << '+' << n << " -" << n << ' ';
            if (n > 5 && n < 19) keys << n << ' ' << 100 + n << ' ';
        }
        keys << "101 2 102 5 105 1 20 19";
        EXPECT_EQ(Do(acts.str() + "@2 @0 @5 @1 down up"), kind == VKey ? keys.str() : "");
    }
}

TEST_F(SwitchPanelLogicTest, VirtualButtonsAreDownForAWhileOrAsLongAsTheLeverStands) {
    Fly("SwitchBATOn=VButton,64,1\nSwitchSELOFFOff=VButton,64,2\nSwitchSELROn=VButton,64,3");
    EXPECT_EQ(Do("+6 +8 ~40 ~20"), "+1 3103=1/1 , -1 ,");
    EXPECT_EQ(Do("@2 ~40 ~20 ~30 ~20 @0"), "+2 , -2 +3 , , -3 ,");
    position = 1;
    EXPECT_EQ(Do("@2"), "+2");
    machine.clock.Sleep(85);
    EXPECT_EQ(Do("~1 ~45 ~20"), "-2 +3 , , -3 ,") << "after a stutter the next one has its time";
    Fly("SwitchGEARDOWNOn=VButton,64,1\nSwitchGEARUPOn=VButton,64,2\nSwitchGEARUPOff=VKey,3,0,0");
    EXPECT_EQ(Do("down ~500 up ~500 down ~500"), "+1 -0 , +2 -1 , +1 -2 ,") << "-0 is up already";
    Fly("SwitchGEARDOWNOn=VButton,64,3\nSwitchGEARUPOn=VButton,64,4");
    EXPECT_EQ(Do("up"), "+4 -0 -1") << "that of the profile before comes up as well";
    Fly("SwitchGEARDOWNOn=VButton,64,5\nSwitchGEARUPOn=VKey,65,1,97");
    EXPECT_EQ(Do("up down"), "+5 -4 16");
    Fly("SwitchGEARDOWNOn=VKey,65,0,98");
    Fly("SwitchGEARDOWNOn=VButton,64,5");
    EXPECT_EQ(Do("down"), "-0") << "it is down, and stays so";
}

TEST_F(SwitchPanelLogicTest, GearLightsShowARetractableGear) {
    EXPECT_EQ(Do("bec:3fff bf4:3fff bf0:3fff ~10 60c:100 Baron ~20 ~20"), ", , L7 ,");
    EXPECT_EQ(Do("bf4:1 bf0:0 ~10 bec:3ffe bf4:0 bf0:3fff ~10 bec:0 bf4:3fff bf2:1 ~10"),
              ", L11 , Lc , L22");
    EXPECT_EQ(Do("bec:1 bf4:4000 ~10 bec:7fff bf4:ffff ~10 281c:0 ~10 bf4:0 ~10"),
              ", L38 , , L0 ,");
    EXPECT_EQ(Do("281c:100 bec:3fff ~10 again ~20 bf4:3fff ~10"), ", L21 L0 , , L23");
    EXPECT_EQ(Do("RetractableGear=0 ~10 60c:0 Glider ~20 3308:7 again ~20"), ", , L0 L0 ,");
    EXPECT_EQ(Do("RetractableGear=1"), "L23") << "the option counts on FS2004 only";
    EXPECT_EQ(Do("RetractableGear=0 ~10 60c:1 Baron ~20"), "L0 , , L23");
}

}  // namespace
