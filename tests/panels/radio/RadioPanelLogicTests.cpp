#include <regex>

#include "tests/panels/radio/RadioPanelFlight.h"

namespace {

struct RadioPanelLogicTest : RadioPanelFlight {
    RadioPanelLogicTest() {
        Fly();
        Do("34e:1802 311a:1807 3118:3697 311c:2150 350:995 311e:1030 352:1795 3120:800 34c:345 "
           "356:3 2d4:234 2d6:105 300:38 306:4d2 302:4dd 308:f 304:e0f 30a:ffff 354:270 330:3f54");
    }
};

TEST_F(RadioPanelLogicTest, ChannelsEngineAndPower) {
    for (const std::string row : {"upper ", "lower "})
        Check(row + R"(1 click => 3123=8 118.02|118.07; up long => 3123=8 118.02|118.07
            2 click up long up => 3123=4 3123=4 136.97|121.50; 3 click => 3123=2 109.95|110.30
            4 long => 3123=1 117.95|108.00; SpecialMode=maddog click => 3123=1 |117.95
            3 => |109.95; 2 => 136.97|121.50; SpecialMode=ngx 3 long => 3123=2 109.95|110.30
            0 inner +1 outer -20 click up long up => 109.95|110.30; DMEMode=0 => 109.95|110.30)");
    EXPECT_EQ(Do("upper 3 ? 2 ? 1 ? 4 ? 5 6 7 0 lower 2 ? second upper 3 ? first"), "3 2 1 4 4 4");
    for (const std::string power : {"281c", "2e80"})
        Check(power + ":0 upper 7 lower 3 311e:1040 => |; inner +1 => 311e=1045 |; upper => |;" +
              power + ":1 311e:1030 => 29.92|0.270; lower => 109.95|110.30");
    EXPECT_EQ(Do("SpecialMode=maddog upper 3 click inner +1 +1 lower 4 outer -1 ? 1 inner -1"),
              "3 3123=2 69633:1000 69633:1005 69634:1695 311a=1805");
}

TEST_F(RadioPanelLogicTest, TuningKeepsToTheChannelsOfTheBand) {
    Do("311a:1800 311c:1800 311e:800 3120:800");
    for (const std::string row : {"311a upper 1", "311c lower 2", "311e upper 3", "3120 lower 4"}) {
        const std::string digits = row.back() < '3'
                                       ? "=3697 =1800 =3687 =1800 =3675 =1800 =3650 =1800 "
                                         "=3600 =1800 =3200 =1800 =2700 =1800 =1700 =1800"
                                       : "=1795 =800 =1775 =800 =1750 =800 =1700 =800 "
                                         "=1700 =800 =1300 =800 =800 =800 =9800 =800";
        EXPECT_EQ(Do(row.substr(4) +
                     " inner -1 +1 -5 +5 -10 +10 -20 +20 outer -1 +1 -5 +5 -10 +10 -20 +20"),
                  std::regex_replace(digits, std::regex("="), row.substr(0, 4) + "="));
    }
    Do("lower 0 upper 1 inner +1");
    for (int turn = 1; turn <= 2000; ++turn) {
        const int channel = (turn <= 1000 ? 1 + turn : 2001 - turn) % 760;
        std::string text = std::to_string((118000 + channel * 25) / 10);
        ASSERT_EQ(Do(turn <= 1000 ? "+1" : "-1"), "311a=" + text.substr(1)) << turn;
        ASSERT_EQ(RadioShown().substr(0, 13), "118.02|" + text.insert(3, ".")) << turn;
    }
}

TEST_F(RadioPanelLogicTest, Adf) {
    Check(R"(ADFMode=3 upper 5 => 0345.3|0345.3; ADFMode=0 click long => 05.6|0345.3
        inner +1 => 34c=345 356=4 05.6|0345.4; outer -5 => 34c=340 356=4 05.6|0340.4
        ADFMode=1 click long => 123|1234.5; outer +20 => 2d4=254 2d6=105 123|1254.5
        ADFMode=2 inner -1 => 34c=340 356=3 1254.5|0340.3.; click => 1254.5.|0340.3
        inner +5 => 2d4=255 2d6=100 1255.0.|0340.3; long => 1255.0|0340.3.
        ADFMode=3 outer +5 => 0340.3|0350.3; click => 34c=350 356=3 0350.3|0340.3
        inner -1 -1 -1 => 0350.3|0340.0; ADFMode=4 +5 => 1255.0|1235.0
        long => 2d4=235 2d6=100 1235.0|1255.0; ADFMode=5 => 0350.3|0340.0
        lower 5 outer +1 => 1235.0|1256.0; click => 2d4=256 2d6=100 1256.0|1235.0
        ADFMode=6 1 => 118.02|118.07; 5 inner +1 click long => 118.02|0350.3
        ADFMode=255 +1 outer -20 click long => 118.02|0350.3; second upper 5 => 0350.3|0340.0
        first ADFMode=3&ADFInnStep=0.25 inner +1 => 0350.3|0340.3
        ADFMode=0 34c:799 356:109 => 05.6|1799.9; +1 => 34c=100 356=0 05.6|0100.0
        -1 outer +20 -20 => 34c=799 356=109 34c=119 356=9 34c=799 356=109 05.6|1799.9
        34c:999 356:9 => 05.6|0999.9; inner +1 => 34c=1000 356=0 05.6|1000.0
        +5 => 34c=0 356=105 05.6|1000.5; -5 -1 => 34c=1000 356=0 34c=999 356=9 05.6|0999.9)");
}

TEST_F(RadioPanelLogicTest, DmeTransponderAndAltimeter) {
    Check(R"(6516:1 upper 6 inner +1 outer -20 => 05.6|123; click => 1 05.6|125; long => 1 05.6|05.
        click => 2 123|109.; lower 6 => 05.6|123; upper long => 2 123|002; click => 05.6|123
        click => 1 05.6|125; DMEMode=0 click => 1 05.6|125; DMEMode=4 click => 1 05.6|125
        DMEMode=3 click => 2 123|002; DMEMode=1 click => 05.6|123; DMEMode=2 click => 1 05.6|125
        long => 1 05.6|05.; 300:0 => 1  . . .| . . .; 306:2710 DMEMode=3 => 2  . . .| . . .
        DMEMode=1 300:1 306:3e7 => 00.1|99.9; 300:3e8 306:270f => 100|999; 7 => 29.92|0.270
        inner +20 => 354=1270 29.92|1.270; click inner +1 click +1 => 354=1370 354=1300 29.92|130.0
        click -1 => 354=1307 29.92|1307.; click -1 click => 354=307 29.92|03.07
        outer +20 => 330=3f58 29.93|03.07; long => 1014|03.07; +1 => 330=3f60 1014|03.07
        -1 -1 => 330=3f50 330=3f40 1012|03.07; AltimeterUnit=0 => 29.88|03.07
        AltimeterUnit=1 long => 1012|03.07; AltimeterUnit=2 long => 29.88|03.07
        AltimeterUnit=3 long => 29.88|03.07
        SpecialMode=ngx +20 -1 long => 69997:4000 69997:2000 69998:20000000 1012|03.07
        SpecialMode=ngx&AltimeterUnit=2 long => 1012|03.07; 6516:ff00 => 29.88|03.07
        DMEMode=0 long => 1012|03.07)");
    EXPECT_FALSE(program->Session.OffsetTable.OffsetRegistered("NGX-IN-HPA"));
}

TEST_F(RadioPanelFlight, KnobStartsFromWhatTheSimulatorHas) {
    ASSERT_TRUE(Start());
    Do("311a:2475 311e:1030 354:1200 34c:345 330:3e80");
    Connect();
    RadioLogic().RPActions->ADFMode = 3;
    EXPECT_EQ(Do("1 +1 5 click 7 +1 outer -1 1"), "") << "nothing is known before the first tick";
    EXPECT_EQ(Do("3 inner +1 ? 7 -1 outer +1 ?"), "311e=1035 3 354=200 330=3e84 3");
    EXPECT_EQ(Do("1 inner +1 lower 1 +1"), "311a=2477 311a=2480") << "no turn is lost";
    RadioLogic().SetupChanged();
    EXPECT_EQ(Do("+1"), "") << "nor is anything known of a new mode";
    EXPECT_EQ(Do("5 outer +1 upper 5 +1 click"), "34c=347 356=0");
}

TEST_F(RadioPanelLogicTest, RecordsGoOutInsteadOfTheBuiltInBehaviour) {
    for (const std::string kind : {"=VButton,64,", "=VKey,", "=None,"})
        for (const std::string at : {"upper 1 COM1", "lower 5 ADF", "upper 7 XPDR"}) {
            std::string keys, sent = kind == "=VKey," ? "1, 2 3 4 4 5 6 7" : ",";
            if (kind[2] == 'B') sent = "+1, -1 +2 -2 +3 -3 +4 -4 +4 -4 +5 -5 +6 -6 +7 -7";
            int number = 0;
            for (const std::string control : {"SelectorAction", "ButtonAction", "LongButtonAction",
                                              "InnRotUp", "InnRotDown", "OutRotUp", "OutRotDown"})
                keys += control + at.substr(8) + kind + std::to_string(++number) + ",0,0&";
            Fly(keys);
            std::string seen = Do(at) + ',';
            machine.loop.Advance(50);
            const std::string rest = Do("click up long up inner +2 -1 outer +1 -1");
            EXPECT_EQ(seen.append(rest.empty() ? "" : " ").append(rest), sent) << keys;
        }
}

TEST_F(RadioPanelLogicTest, BoundVirtualButtonIsDownAsLongAsThePanelsOwn) {
    Fly("ButtonActionCOM1=VButton,64,1&LongButtonActionCOM1=VButton,64,2&"
        "ButtonActionDME=VButton,64,3&LongButtonActionDME=VKey,65,0,0");
    EXPECT_EQ(Do("upper 1 click , , up , up , long , , up"), "+1 , , -1 , , +2 , , -2");
    EXPECT_EQ(Do("up , long up , long click ,"), ", +2 -2 , +2 -2 +1 ,") << "each comes up";
    EXPECT_EQ(Do("lower 6 click , upper up click , lower up , upper up"), "+3 , -1 +1 , -3 , -1");
    Do("1 long");
    LoseSimulator();
    Connect();
    EXPECT_EQ(Sent(), "-2") << "in the next session";
    RadioLogic().ButtonClick(0x2000);  // not one of the panel's
    EXPECT_EQ(Do("1 click 6 up click long up"), "+1 -1 +3 -3 65") << "the selector has moved";
    EXPECT_EQ(Do("click ADFMode=0 up , 1 click up"), "-3 , 3123=8") << "the bindings are new";
}

TEST_F(RadioPanelLogicTest, SelectorHoldsItsVirtualButtonForAWhileAndGoesOnMeanwhile) {
    Fly("SelectorActionDME=VButton,64,1&SelectorActionADF=VButton,64,2");
    Check("upper 6 , , , , => +1 , , , , -1 05.6|123; 5 6 5 => +2 05.6|0345.3");
    machine.loop.Advance(200);
    EXPECT_EQ(Sent(), "-2 +1 -1 +2 -2") << "one after the other";
    EXPECT_EQ(Do("6 5 6"), "+1");
    LoseSimulator();
    machine.loop.Advance(100);
    Connect();
    machine.loop.Advance(200);
    EXPECT_EQ(Sent(), "-1") << "those that waited are not for the next session";
}

// Twenty pulses in 200 ms are fast only to a sampler whose period is long enough to see them all.
TEST_F(RadioPanelLogicTest, DeviceDrivesItsLogicAndTakesAccelerationsByRow) {
    const auto speeds = [this](uint8_t high, uint8_t middle) {
        machine.loop.Advance(2000);
        for (int i = 0; i < 40; ++i, machine.loop.Advance(5))
            device.SendReport({0, high, middle, i % 2 ? uint8_t{0} : uint8_t{0x11}});
        RadioPanelPicture& shown = Radio().OnScreen;
        return shown.At(1).labSpeed.Caption.Get() + "|" + shown.At(2).labSpeed.Caption.Get();
    };
    Fly("RotAccelerationNAV1=50");
    for (const uint8_t byte : {uint8_t{0x42}, uint8_t{2}}) device.SendReport({0, 2, byte, 0});
    EXPECT_EQ(Sent(), "3123=4") << "COM2, NAV1";
    EXPECT_EQ(speeds(0x04, 0x01), "20|1") << "NAV1, COM2";
    EXPECT_EQ(speeds(0x02, 0x02), "1|20");
    Fly();
    EXPECT_EQ(speeds(0x02, 0x02), "1|1");
}

}  // namespace
