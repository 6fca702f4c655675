#include <array>
#include <tuple>
#include <utility>

#include "tests/panels/radio/RadioPanelFlight.h"

namespace {

struct RadioPanelLogicTest : RadioPanelFlight {
    RadioPanelLogicTest() {
        Fly();
        const std::pair<uint32_t, uint16_t> radios[] = {
            {kCOM1, 0x1802},  {kCOM1Standby, 0x1807}, {kCOM2, 0x3697},   {kCOM2Standby, 0x2150},
            {kNAV1, 0x0995},  {kNAV1Standby, 0x1030}, {kNAV2, 0x1795},   {kNAV2Standby, 0x0800},
            {kADF1, 0x0345},  {kADF1Extension, 0x3},  {kADF2, 0x0234},   {kADF2Extension, 0x0105},
            {kDME1, 56},      {kDME1Speed, 1245},     {kDME1Time, 3599}, {kDME2, 1234},
            {kDME2Speed, 15}, {kDME2Time, 65535},     {kXPDR, 0x0270},   {kAltimeter, 0x3F54},
        };
        for (const auto& [offset, value] : radios) Simulator(offset, value);
        Sent();
    }
};

// The frequency of an ADF radio goes out in two words.
std::string WroteADF1(int main, int extension) {
    return WroteWord(kADF1, main) + WroteWord(kADF1Extension, extension);
}
std::string WroteADF2(int main, int extension) {
    return WroteWord(kADF2, main) + WroteWord(kADF2Extension, extension);
}

TEST_F(RadioPanelLogicTest, ChannelsOfBothRows) {
    for (const Row each : {Upper, Lower}) {
        At(each);
        Fly(), MoveSelectorTo(COM1), Click(), Expect(WroteByte(kSwap, 8), "118.02|118.07");
        Release(), LongClick(), Expect(WroteByte(kSwap, 8), "118.02|118.07");
        MoveSelectorTo(COM2), Click(), Release(), LongClick(), Release();
        Expect(WroteByte(kSwap, 4) + WroteByte(kSwap, 4), "136.97|121.50");
        MoveSelectorTo(NAV1), Click(), Expect(WroteByte(kSwap, 2), "109.95|110.30");
        MoveSelectorTo(NAV2), LongClick(), Expect(WroteByte(kSwap, 1), "117.95|108.00");
        Fly("SpecialMode=maddog"), Click(), Expect(WroteByte(kSwap, 1), "|117.95");
        MoveSelectorTo(NAV1), ExpectShown("|109.95");
        MoveSelectorTo(COM2), ExpectShown("136.97|121.50");
        Fly("SpecialMode=ngx"), MoveSelectorTo(NAV1), LongClick();
        Expect(WroteByte(kSwap, 2), "109.95|110.30");
        MoveSelectorTo(None), TurnInner(+1), TurnOuter(-20);
        Click(), Release(), LongClick(), Release(), ExpectShown("109.95|110.30");
        Fly("DMEMode=0"), ExpectShown("109.95|110.30");
    }
}

TEST_F(RadioPanelLogicTest, UpperRowOfTheFirstPanelSelectsTheEngine) {
    for (const Position engine : {NAV1, COM2, COM1, NAV2}) {
        MoveSelectorTo(engine);
        EXPECT_EQ(Engine(), engine);
    }
    for (const int knob : {-1, 4}) Radio().RotaryUp.Raise(knob, 1);  // the panel has 0 to 3
    ExpectSent(kNothing);
    for (const Position none : {ADF, DME, XPDR, None}) MoveSelectorTo(none);
    At(Lower), MoveSelectorTo(COM2);
    EXPECT_EQ(Engine(), 4);
    At(Upper, 2), MoveSelectorTo(NAV1);
    EXPECT_EQ(Engine(), 4);
    ExpectSent(kNothing);
}

TEST_F(RadioPanelLogicTest, WithoutPowerThePanelIsDarkButTunes) {
    for (const uint32_t power : {kBatteryMaster, kAvionicsMaster}) {
        Simulator(power, 0), Simulator(kNAV1Standby, 0x1040);
        At(Upper), MoveSelectorTo(XPDR), At(Lower), MoveSelectorTo(NAV1), ExpectShown("|");
        TurnInner(+1), Expect(WroteWord(kNAV1Standby, 0x1045), "|");
        At(Upper), ExpectShown("|");
        Simulator(power, 1), Simulator(kNAV1Standby, 0x1030), ExpectShown("29.92|0.270");
        At(Lower), ExpectShown("109.95|110.30");
    }
}

TEST_F(RadioPanelLogicTest, MaddogsNavRadiosAreTunedByControls) {
    Fly("SpecialMode=maddog");
    At(Upper), MoveSelectorTo(NAV1), Click(), TurnInner(+1), TurnInner(+1);
    At(Lower), MoveSelectorTo(NAV2), TurnOuter(-1);
    EXPECT_EQ(Engine(), 3);
    MoveSelectorTo(COM1), TurnInner(-1);
    ExpectSent(WroteByte(kSwap, 2) + SentControl(69633, 0x1000) + SentControl(69633, 0x1005) +
               SentControl(69634, 0x1695) + WroteWord(kCOM1Standby, 0x1805));
}

TEST_F(RadioPanelLogicTest, TuningKeepsToTheChannelsOfTheBand) {
    struct Band {
        uint16_t start;
        std::array<int, 4> inner, outer;  // where 1, 5, 10 and 20 steps down end
    };
    const Band com = {0x1800, {0x3697, 0x3687, 0x3675, 0x3650}, {0x3600, 0x3200, 0x2700, 0x1700}};
    const Band nav = {0x0800, {0x1795, 0x1775, 0x1750, 0x1700}, {0x1700, 0x1300, 0x0800, 0x9800}};
    const std::tuple<uint32_t, Row, Position, Band> radios[] = {{kCOM1Standby, Upper, COM1, com},
                                                                {kCOM2Standby, Lower, COM2, com},
                                                                {kNAV1Standby, Upper, NAV1, nav},
                                                                {kNAV2Standby, Lower, NAV2, nav}};
    for (const auto& [offset, theRow, position, band] : radios) {
        Simulator(offset, band.start), At(theRow), MoveSelectorTo(position), Sent();
        std::string sent;
        for (size_t i = 0; i < 4; ++i) {
            const int steps = std::array{1, 5, 10, 20}[i];
            TurnInner(-steps), TurnInner(+steps), TurnOuter(-steps), TurnOuter(+steps);
            for (const int end : {band.inner[i], band.outer[i]})
                sent += WroteWord(offset, end) + WroteWord(offset, band.start);
        }
        ExpectSent(sent);
    }
    At(Lower), MoveSelectorTo(None), At(Upper), MoveSelectorTo(COM1), TurnInner(+1), Sent();
    for (int turn = 1; turn <= 2000; ++turn) {
        const int channel = (turn <= 1000 ? 1 + turn : 2001 - turn) % 760;
        std::string digits = std::to_string((118000 + channel * 25) / 10);
        TurnInner(turn <= 1000 ? +1 : -1);
        ASSERT_EQ(Sent(), WroteWord(kCOM1Standby, std::stoi(digits.substr(1), nullptr, 16)))
            << turn;
        ASSERT_EQ(Shown(), "118.02|" + digits.insert(3, ".")) << turn;
    }
}

TEST_F(RadioPanelLogicTest, AdfAsItsModeSays) {
    Fly("ADFMode=3"), MoveSelectorTo(ADF), ExpectShown("0345.3|0345.3");
    Fly("ADFMode=0"), Click(), LongClick(), ExpectShown("05.6|0345.3");
    TurnInner(+1), Expect(WroteADF1(0x345, 0x4), "05.6|0345.4");
    TurnOuter(-5), Expect(WroteADF1(0x340, 0x4), "05.6|0340.4");
    Fly("ADFMode=1"), Click(), LongClick(), ExpectShown("123|1234.5");
    TurnOuter(+20), Expect(WroteADF2(0x254, 0x105), "123|1254.5");
    Fly("ADFMode=2"), TurnInner(-1), Expect(WroteADF1(0x340, 0x3), "1254.5|0340.3.");
    Click(), ExpectShown("1254.5.|0340.3");
    TurnInner(+5), Expect(WroteADF2(0x255, 0x100), "1255.0.|0340.3");
    LongClick(), ExpectShown("1255.0|0340.3.");
    Fly("ADFMode=3"), TurnOuter(+5), ExpectShown("0340.3|0350.3");
    Click(), Expect(WroteADF1(0x350, 0x3), "0350.3|0340.3");
    TurnInner(-1), TurnInner(-1), TurnInner(-1), ExpectShown("0350.3|0340.0");
    Fly("ADFMode=4"), TurnInner(+5), ExpectShown("1255.0|1235.0");
    LongClick(), Expect(WroteADF2(0x235, 0x100), "1235.0|1255.0");
    Fly("ADFMode=5"), ExpectShown("0350.3|0340.0");
    At(Lower), MoveSelectorTo(ADF), TurnOuter(+1), ExpectShown("1235.0|1256.0");
    Click(), Expect(WroteADF2(0x256, 0x100), "1256.0|1235.0");
    Fly("ADFMode=6"), MoveSelectorTo(COM1), ExpectShown("118.02|118.07");
    MoveSelectorTo(ADF), TurnInner(+1), Click(), LongClick(), ExpectShown("118.02|0350.3");
    Fly("ADFMode=255"), TurnInner(+1), TurnOuter(-20), Click(), LongClick();
    ExpectShown("118.02|0350.3");
    At(Upper, 2), MoveSelectorTo(ADF), ExpectShown("0350.3|0340.0");
}

TEST_F(RadioPanelLogicTest, AdfWrapsAtTheEndsOfItsBand) {
    Fly("ADFMode=3"), MoveSelectorTo(ADF), TurnInner(-1), TurnInner(-1), TurnInner(-1);
    Fly("ADFMode=3\nADFInnStep=0.25"), TurnInner(+1), ExpectShown("0345.3|0345.3");
    Fly("ADFMode=0"), Simulator(kADF1, 0x0799), Simulator(kADF1Extension, 0x0109);
    ExpectShown("05.6|1799.9");
    TurnInner(+1), Expect(WroteADF1(0x100, 0x0), "05.6|0100.0");
    TurnInner(-1), TurnOuter(+20), TurnOuter(-20);
    Expect(WroteADF1(0x799, 0x109) + WroteADF1(0x119, 0x9) + WroteADF1(0x799, 0x109),
           "05.6|1799.9");
    Simulator(kADF1, 0x0999), Simulator(kADF1Extension, 0x0009), ExpectShown("05.6|0999.9");
    TurnInner(+1), Expect(WroteADF1(0x1000, 0x0), "05.6|1000.0");
    TurnInner(+5), Expect(WroteADF1(0x0, 0x105), "05.6|1000.5");
    TurnInner(-5), TurnInner(-1);
    Expect(WroteADF1(0x1000, 0x0) + WroteADF1(0x999, 0x9), "05.6|0999.9");
}

TEST_F(RadioPanelLogicTest, DmeShowsBothDistancesOrOneStation) {
    MoveSelectorTo(DME), TurnInner(+1), TurnOuter(-20), ExpectShown("05.6|123");
    Click(), ExpectShown("1 05.6|125");
    LongClick(), ExpectShown("1 05.6|05.");
    Click(), ExpectShown("2 123|109.");
    At(Lower), MoveSelectorTo(DME), ExpectShown("05.6|123");
    At(Upper), LongClick(), ExpectShown("2 123|002");
    Click(), ExpectShown("05.6|123");
    Click(), ExpectShown("1 05.6|125");
    const std::pair<const char*, const char*> modes[] = {
        {"0", "1 05.6|125"}, {"4", "1 05.6|125"}, {"3", "2 123|002"},
        {"1", "05.6|123"},   {"2", "1 05.6|125"},
    };
    for (const auto& [mode, shown] : modes)
        Fly(std::string("DMEMode=") + mode), Click(), ExpectShown(shown);
    LongClick(), ExpectShown("1 05.6|05.");
    Simulator(kDME1, 0), ExpectShown("1  . . .| . . .");
    Simulator(kDME2, 10000), Fly("DMEMode=3"), ExpectShown("2  . . .| . . .");
    Fly("DMEMode=1"), Simulator(kDME1, 1), Simulator(kDME2, 999), ExpectShown("00.1|99.9");
    Simulator(kDME1, 1000), Simulator(kDME2, 9999), ExpectShown("100|999");
}

TEST_F(RadioPanelLogicTest, TransponderAndAltimeter) {
    const auto code = [](int bcd) { return WroteWord(kXPDR, bcd); };
    const auto altimeter = [](int sixteenths) { return WroteWord(kAltimeter, sixteenths); };
    Simulator(0x6516, 1);  // hPa, in the NGX; nothing in the other modes
    MoveSelectorTo(XPDR), ExpectShown("29.92|0.270");
    TurnInner(+20), Expect(code(0x1270), "29.92|1.270");
    Click(), TurnInner(+1), Click(), TurnInner(+1);
    Expect(code(0x1370) + code(0x1300), "29.92|130.0");
    Click(), TurnInner(-1), Expect(code(0x1307), "29.92|1307.");
    Click(), TurnInner(-1), Click(), Expect(code(0x0307), "29.92|03.07");
    At(Lower), MoveSelectorTo(XPDR), ExpectShown("29.92|03.07"), At(Upper);
    TurnOuter(+20), Expect(altimeter(0x3F58), "29.93|03.07");
    LongClick(), ExpectShown("1014|03.07");
    TurnOuter(+1), Expect(altimeter(0x3F60), "1014|03.07");
    TurnOuter(-1), TurnOuter(-1), Expect(altimeter(0x3F50) + altimeter(0x3F40), "1012|03.07");
    Fly("AltimeterUnit=0"), ExpectShown("29.88|03.07");
    Fly("AltimeterUnit=1"), LongClick(), ExpectShown("1012|03.07");
    Fly("AltimeterUnit=2"), LongClick(), ExpectShown("29.88|03.07");
    Fly("AltimeterUnit=3"), LongClick(), ExpectShown("29.88|03.07");
    Fly("SpecialMode=ngx"), TurnOuter(+20), TurnOuter(-1), LongClick();
    Expect(SentControl(69997, 0x4000) + SentControl(69997, 0x2000) + SentControl(69998, kLeftClick),
           "1012|03.07");
    Fly("SpecialMode=ngx\nAltimeterUnit=2"), LongClick(), ExpectShown("1012|03.07");
    Simulator(0x6516, 0xFF00), ExpectShown("29.88|03.07");
    Fly("DMEMode=0"), LongClick(), ExpectShown("1012|03.07");
    EXPECT_FALSE(program->Session.OffsetTable.OffsetRegistered("NGX-IN-HPA"));
}

TEST_F(RadioPanelFlight, KnobsStartFromWhatATickHasRead) {
    ASSERT_TRUE(Start());
    Simulator(kNAV1Standby, 0x1030), Simulator(kXPDR, 0x1200);
    Simulator(kADF1, 0x0345), Simulator(kAltimeter, 0x3E80), Sent(), Connect();
    RadioLogic().RPActions->ADFMode = 3;
    const auto turnAll = [this] {
        MoveSelectorTo(NAV1), TurnInner(+1), MoveSelectorTo(XPDR), TurnInner(-1), TurnOuter(+1);
        MoveSelectorTo(ADF), TurnOuter(+1), At(Lower), MoveSelectorTo(ADF), TurnOuter(+1), Click();
        At(Upper);
    };
    turnAll();
    EXPECT_EQ(told, kNothing) << "nothing is known before the first tick";
    ExpectSent(WroteWord(kNAV1Standby, 0x1035) + WroteWord(kXPDR, 0x0200) +
               WroteWord(kAltimeter, 0x3E84) + WroteADF1(0x347, 0x0));
    RadioLogic().SetupChanged();
    Simulator(kNAV1Standby, 0x1100), Simulator(kXPDR, 0x4200), Simulator(kAltimeter, 0x3F00);
    turnAll();
    EXPECT_EQ(told, kNothing) << "nor of a new mode";
    ExpectSent(WroteWord(kNAV1Standby, 0x1105) + WroteWord(kXPDR, 0x3200) +
               WroteWord(kAltimeter, 0x3F04) + WroteADF1(0x347, 0x0));
}

TEST_F(RadioPanelLogicTest, RecordsGoOutInsteadOfTheBuiltInBehaviour) {
    const std::tuple<Row, Position, std::string> places[] = {
        {Upper, COM1, "COM1"}, {Lower, ADF, "ADF"}, {Upper, XPDR, "XPDR"}};
    for (const std::string kind : {"=VKey,", "=None,"})
        for (const auto& [theRow, position, name] : places) {
            std::string keys, typed;
            int number = 0;
            for (const std::string control : {"SelectorAction", "ButtonAction", "LongButtonAction",
                                              "InnRotUp", "InnRotDown", "OutRotUp", "OutRotDown"})
                keys += control + name + kind + std::to_string(++number) + ",0,0\n";
            Fly(keys), At(theRow), MoveSelectorTo(position);
            Click(), Release(), LongClick(), Release();
            TurnInner(+2), TurnInner(-1), TurnOuter(+1), TurnOuter(-1);
            for (const int key : {1, 2, 3, 4, 4, 5, 6, 7}) typed += Typed(key);
            ExpectSent(kind == "=VKey," ? typed : kNothing, keys.c_str());
        }
}

TEST_F(RadioPanelLogicTest, BoundVirtualButtonIsDownAsLongAsThePanelsOwn) {
    const std::string tick = Waited(10);
    const auto nextTick = [this] { WaitMs(10); };
    Fly("ButtonActionCOM1=VButton,64,1\nLongButtonActionCOM1=VButton,64,2\n"
        "ButtonActionDME=VButton,64,3\nLongButtonActionDME=VKey,65,0,0");
    MoveSelectorTo(COM1), Click(), nextTick(), nextTick(), Release(), nextTick(), Release();
    nextTick(), LongClick(), nextTick(), nextTick(), Release();
    ExpectSent(Pressed(1) + tick + tick + Released(1) + tick + tick + Pressed(2) + tick + tick +
               Released(2));
    Release(), nextTick(), LongClick(), Release(), nextTick(), LongClick(), nextTick(), Click();
    nextTick();
    ExpectSent(tick + Clicked(2) + tick + Pressed(2) + tick + Released(2) + Pressed(1) + tick,
               "each comes up");
    At(Lower), MoveSelectorTo(DME), Click(), nextTick(), At(Upper), Release(), Click(), nextTick();
    At(Lower), Release(), nextTick(), At(Upper), Release();
    ExpectSent(Pressed(3) + tick + Released(1) + Pressed(1) + tick + Released(3) + tick +
               Released(1));
    MoveSelectorTo(COM1), LongClick(), Sent();
    Reconnect(), ExpectSent(Released(2), "in the next session");
    RadioLogic().ButtonClick(0x2000);  // not one of the panel's
    MoveSelectorTo(COM1), Click(), MoveSelectorTo(DME), Release(), Click(), LongClick(), Release();
    ExpectSent(Clicked(1) + Clicked(3) + Typed(65), "the selector has moved");
    Click(), Fly("ADFMode=0"), Release(), nextTick(), MoveSelectorTo(COM1), Click(), Release();
    ExpectSent(Released(3) + tick + WroteByte(kSwap, 8), "the bindings are new");
}

TEST_F(RadioPanelLogicTest, SelectorHoldsItsVirtualButtonForAWhileAndGoesOnMeanwhile) {
    Fly("SelectorActionDME=VButton,64,1\nSelectorActionADF=VButton,64,2");
    MoveSelectorTo(DME), WaitMs(40), Expect(Pressed(1) + Waited(40) + Released(1), "05.6|123");
    MoveSelectorTo(ADF), MoveSelectorTo(DME), MoveSelectorTo(ADF);
    Expect(Pressed(2), "05.6|0345.3");
    machine.loop.Advance(200);
    ExpectSent(Released(2) + Clicked(1) + Clicked(2), "one after the other");
    MoveSelectorTo(DME), MoveSelectorTo(ADF), MoveSelectorTo(DME), ExpectSent(Pressed(1));
    LoseSimulator(), machine.loop.Advance(100), Connect(), machine.loop.Advance(200);
    ExpectSent(Released(1), "those that waited are not for the next session");
}

// Twenty pulses in 200 ms are fast only to a sampler whose period is long enough to see them all.
TEST_F(RadioPanelLogicTest, DeviceDrivesItsLogicAndTakesAccelerationsByRow) {
    const auto speeds = [this](uint8_t high, uint8_t middle) {
        machine.loop.Advance(2000);
        for (int i = 0; i < 40; ++i, machine.loop.Advance(5))  // inner rings of both rows
            device.SendReport({0x00, high, middle, i % 2 ? uint8_t{0} : uint8_t{0x11}});
        RadioPanelPicture& shown = Radio().OnScreen;
        return shown.At(1).labSpeed.Caption.Get() + "|" + shown.At(2).labSpeed.Caption.Get();
    };
    Fly("RotAccelerationNAV1=50");
    device.SendReport({0x00, 0x02, 0x42, 0x00});  // COM2, NAV1, and the upper row's button
    device.SendReport({0x00, 0x02, 0x02, 0x00});  // released
    ExpectSent(WroteByte(kSwap, 4));
    EXPECT_EQ(speeds(0x04, 0x01), "20|1") << "NAV1, COM2";
    EXPECT_EQ(speeds(0x02, 0x02), "1|20") << "COM2, NAV1";
    Fly();
    EXPECT_EQ(speeds(0x02, 0x02), "1|1");
}

}  // namespace
