#include "tests/panels/PanelFlight.h"

namespace {

struct BIPPanelFlight : PanelFlight {
    VirtualDevice &device = Plug(PanelKind::BIP), &device2 = Plug(PanelKind::BIP, 2);
    void TestBody() override {}
    std::string Seen(int number = 1) {
        std::string seen;
        for (const size_t tile : {0, 1, 2, 23}) {
            const Color face = BIP(number).OnScreen.shpTile[tile].FillColor;
            seen += face == 0xFF ? 'r' : face == 0xFF00 ? 'g' : face == 0xFFFF ? 'y' : '-';
        }
        return seen;
    }
    // How many reports each of two ticks sends, and what is shown then.
    std::string Next(int ticks = 2) {
        device.featureReports.clear();
        Tick();
        const std::string now = std::to_string(device.featureReports.size()) + Seen();
        return ticks == 1 ? now : now + Next(ticks - 1);
    }
};

// "NAME@offset:type" that a function reads; its key; its mode (s all but NGX, n NGX, b all) and, if
// it isn't the standard one, threshold; values of what it reads, and what the tile shows then: "+"
// its own colour, "-" off, "=" what it showed before, or a colour.
const char kRules[] = R"(
NO_TILE b - MASTER_CAUTION s = AP_PRST s = AT_PRST s = FMC_PRST s =
ROTOR-RPM@908:5 ROTOR_LOW_RPM b 16384=
ENGINE-FIRE@3366:1 ENG_FIRE s 0- 1+ 128+ ENG_1_FIRE s 1+ 0xfe- ENG_2_FIRE s 2+ 0xfd- ENG_3_FIRE b
    4+ 0xfb- ENG_4_FIRE b 8+ 0xf7- LEFT_ENG_FIRE s 1+ 0xfe-
NGX-FIRE-ENG1@6504:1 n 0- 1+ 2+
ENGINE-FIRE@3366:1 RIGHT_ENG_FIRE s 2+ 0xfd-
NGX-FIRE-ENG2@6505:1 n 0- 1+ 2+
NGX-FIRE-ENG1@6504:1 NGX-FIRE-ENG2@6505:1 ENG_FIRE n 0,0- 2,0+ 0,2+ ENG_1_FIRE n 2,0+ 0,2-
    ENG_2_FIRE n 2,0- 0,2+
ENG1-FUEL-PRESSURE@8f8:5 LOW_PRESSURE s 569+ 570- 571-
NGX-FCTL_annunLOW_PRESSURE@644b:1 n 0- 1+ 2-
ENG1-OIL-PRESSURE@8ba:3 OIL_PRESSURE s 5999+ 6000- 6001- s,0 0- s,100 29999+ 30000-
NGX-APU_annunLOW_OIL_PRESSURE@6491:1 n 0- 1+ 2-
ENG1-OIL-PRESSURE@8ba:3 ENG_1_OIL_PRESSURE s 5999+ 6000- 6001-
NGX-FCTL_annunFC_LOW_PRESSURE1@6447:1 n 0- 1+ 2-
ENG2-OIL-PRESSURE@952:3 ENG_2_OIL_PRESSURE s 5999+ 6000- 6001-
NGX-FCTL_annunFC_LOW_PRESSURE2@6448:1 n 0- 1+ 2-
ENG3-OIL-PRESSURE@9ea:3 ENG_3_OIL_PRESSURE b 5999+ 6000- 6001-
ENG4-OIL-PRESSURE@a82:3 ENG_4_OIL_PRESSURE b 5999+ 6000- 6001-
ENG1-OIL-TEMP@8b8:3 ENG_OIL_TEMP b 15209- 15210- 15211+ b,100 23400- 23401+ ENG_1_OIL_TEMP b
    15209- 15210- 15211+
ENG2-OIL-TEMP@950:3 ENG_2_OIL_TEMP b 15209- 15210- 15211+
ENG3-OIL-TEMP@9e8:3 ENG_3_OIL_TEMP b 15209- 15210- 15211+
ENG4-OIL-TEMP@a80:3 ENG_4_OIL_TEMP b 15209- 15210- 15211+
FUEL-CAPACITY@1240:5 FUEL-QUANTITY@1264:5 FUEL_LOW s 0,9= 1000,149+ 1000,150- 1000,151-
    0x800000,0x13ffff+
NGX-WARN_annunFUEL@650a:1 n 0- 1+ 2-
LEFT-TANK-LEVEL@b7c:5 LEFT_FUEL_LOW b 0xccccc+ 0x13a613+ 0x13a614- 0x13a615- b,100 0x7f0000+
    0x800000-
CENTER-TANK-LEVEL@b74:5 CENTRE_FUEL_LOW b 0x13a613+ 0x13a614- 0x13a615-
RIGHT-TANK-LEVEL@b94:5 RIGHT_FUEL_LOW b 0x13a613+ 0x13a614- 0x13a615-
CROSSFEED-SWITCH@341f:1 FUEL_CROSS_FEED s 0- 1+ 2+
NGX-FUEL_annunXFEED_VALVE_OPEN@6469:1 n 0- 1+ 2-
GEARNOSE@bec:4 GEARRIGHT@bf0:4 GEARLEFT@bf4:4 GEAR_DOWN s 16383,16383,16383+ 0,16383,16383-
    16383,1,16383- 16383,16383,1- GEAR_UP s 0,0,0+ 1,0,0- 0,16383,0- 0,0,1- GEAR_UNSAFE s
    0,16383,0- 1,0,0+ 16383,16384,0+ 0,0,-1+ COMBINED_GEAR s 0,0,0- 16383,16383,16383g 16383,0,0=
    1,0,0r 0,1,16383r NOSE_GEAR s 0,1,16383- 16383,0,1g 1,16383,0r RIGHT_GEAR s 1,0,16383-
    0,16383,1g 16383,1,0r LEFT_GEAR s 1,16383,0- 0,1,16383g 16383,0,1r
NGX-MAIN_annunGEAR_transit1@6570:1 NGX-MAIN_annunGEAR_transit2@6571:1
    NGX-MAIN_annunGEAR_transit3@6572:1 NGX-MAIN_annunGEAR_locked1@6573:1
    NGX-MAIN_annunGEAR_locked2@6574:1 NGX-MAIN_annunGEAR_locked3@6575:1 GEAR_DOWN n 0,0,0,1,1,1+
    1,1,1,1,1,1+ 0,0,0,2,1,1- 0,0,1,1,1,0- GEAR_UP n 0,0,0,0,0,0+ 2,2,2,2,2,2+ 0,1,0,0,0,0-
    0,0,0,0,0,1- GEAR_UNSAFE n 0,0,0,0,1,1- 2,0,0,1,0,0- 1,0,0,0,1,1+ 0,1,0,1,0,1+ COMBINED_GEAR n
    0,0,0,0,0,0- 0,0,0,1,1,1g 0,0,0,1,0,0= 1,0,0,0,1,1r NOSE_GEAR n 1,0,1,1,0,1- 0,1,0,0,1,0g
    0,1,0,1,0,1r RIGHT_GEAR n 0,1,1,0,1,1- 1,0,0,1,0,0g 1,0,0,0,1,1r LEFT_GEAR n 1,1,0,1,1,0-
    0,0,1,0,0,1g 0,0,1,1,1,0r
RADIO-IDENT-SWITCHES@3122:1 DME b 2+ 0xfd- NAV_1 b 16+ 0xef- NAV_2 b 8+ 0xf7- COM_1 b 128+ 0x7f-
    COM_2 b 64+ 0xbf- BOTH b 32+ 0xdf- MKR b 4+ 0xfb- ADF b 1+ 0xfe-
NAV-GPS-SWITCH@132c:5 GPS b 0- 1+ 2- NAV b 0+ 1- 2-
AP-MASTER-SWITCH@7bc:5 AUTO_PILOT b 0- 1+ 2- AP_MASTER b 0- 1+ 2-
LIGHTS-SWITCHES@d0c:3 BEACON_LIGHT b 2+ 0xfffd- LANDING_LIGHT b 4+ 0xfffb- STROBE_LIGHT s 16+
    0xffef- n 1+ 0xfffe- NAV_LIGHT b 1+ 0xfffe- TAXI_LIGHT b 8+ 0xfff7- INSTR_LIGHT b 32+ 0xffdf-
    RECOG_LIGHT b 64+ 0xffbf- WING_LIGHT b 128+ 0xff7f- LOGO_LIGHT b 256+ 0xfeff- CABIN_LIGHT b
    512+ 0xfdff-
VAC-PRESSURE@b18:8 VAC_LOW b 2.999+ 3- 3.001-
STALL-WARNING@36c:1 STALL_WARNING b 0- 1+ 2-
DOORS-OPEN@3367:1 DOOR_WARNING s 0- 1+ 2+
NGX-WARN_annunDOORS@6510:1 n 0- 1+ 2-
PITOT-SWITCH@29c:1 PITOT_HEAT s 0- 1+ 2-
NGX-ICE_annunCAPT_PITOT@64ae:1 n 0- 1+ 2-
PARKING-BRAKE@bc8:3 PARKING_BRAKES s 0- 1+ 32767+
NGX-PED_annunParkingBrake@65a7:1 n 0- 1+ 2-
INNER-MARKER@bac:3 MIDDLE-MARKER@bae:3 OUTER-MARKER@bb0:3 OUTER_MARKER b 0,0,256+ 1,1,0-
    MIDDLE_MARKER b 0,256,0+ 1,0,1- INNER_MARKER b 256,0,0+ 0,1,1- COMBINED_OMI b 0,0,0- 0,0,256g
    0,256,0r 0,1,1r 256,0,0y 1,0,1y 1,1,1y
NGX-WARN_annunMASTER_CAUTION@6506:1 MASTER_CAUTION n 0- 1+ 2-
NGX-MAIN_annunAP1@6550:1 NGX-ANY_AP_Mode@6545:5 AP_PRST n 0,0- 0,1- 1,0r 2,0r 1,1y 2,256y
NGX-MAIN_annunAT1@6552:1 AT_PRST n 0- 1r 2r
NGX-MAIN_annunFMC1@6554:1 FMC_PRST n 0- 1r 2r
)";

// Each function in a program of its own, which reads the title and the masters besides.
TEST_F(BIPPanelFlight, FunctionsReadWhatTheyNeedAndLightByIt) {
    for (const std::string mode : {"", "maddog", "ngx"}) {
        std::unique_ptr<BIPPanelFlight> flight;
        std::vector<std::tuple<std::string, int32_t, int32_t>> reads;
        std::istringstream words(kRules);
        for (std::string key, rule, word; words >> word;) {
            char* end = word.data();
            if (const size_t mark = word.find('@'); mark != word.npos) {
                if (!std::exchange(rule, {}).empty()) reads.clear();
                reads.emplace_back(word.substr(0, mark), std::strtol(end + mark + 1, nullptr, 16),
                                   word.back() - '0');
            } else if (std::isupper(*end)) {
                key = word;
            } else if (std::islower(*end)) {
                rule = mode + ' ' + key + ' ';
                flight.reset();
                if (*end++ == (mode == "ngx" ? 's' : 'n')) continue;
                flight = std::make_unique<BIPPanelFlight>();
                flight->FlyWith("[Common]\nSpecialMode=" + mode + "\n[BIPPanel1]\nT0=" + key +
                                ",Red" + end + "\nT23=" + key + ",Green" + end);
                EXPECT_EQ(flight->program->Session.OffsetTable.Shape(), 4 + reads.size()) << rule;
                for (const auto& [name, at, type] : reads) {
                    const cOFFSET* entry = flight->program->Session.OffsetTable.Item(name);
                    EXPECT_TRUE(entry && entry->Offset == at && entry->DataType() == type) << name;
                }
            } else if (flight) {
                for (const auto& [name, at, type] : reads) {  // upward: each one's bytes stay
                    const double value = std::strtod(end, &end);
                    flight->sim.Set<int32_t>(at, static_cast<int32_t>(value));
                    if (type == 8) flight->sim.Set<double>(at, value);
                    end += *end == ',';
                }
                flight->BIP().TurnPanel(0x00FFFF);
                flight->Tick();
                std::string shown = "r--g";
                if (*end != '+') shown[0] = shown[3] = *end == '=' ? 'y' : *end;
                EXPECT_EQ(flight->Seen(), shown) << rule << word;
            }
        }
    }
}

TEST_F(BIPPanelFlight, OnlyChangesAreSentButADarkPanelIsToldAtEveryTick) {
    for (const uint32_t lit : {0x0BAC, 0x0BB0, 0x6506}) sim.Set<uint8_t>(lit, 1);
    FlyWith("[Common]\nSpecialMode=ngx\n[BIPPanel1]\nT0=MASTER_CAUTION,Red\nT1=COMBINED_OMI,Red");
    EXPECT_EQ(Next(), "2ry--2ry--") << "the tile of both markers changes twice";
    EXPECT_EQ(device.featureReports[0], (VirtualDevice::Report{0xB8, 2, 0, 0, 1, 0, 0}));
    FlyWith("[BIPPanel1]\nT0=MASTER_CAUTION,Green\nT2=GEAR_UP,Green");
    EXPECT_EQ(BIP().OnScreen.lblTileR3[2].Caption.Get(), "UP");
    sim.Set<uint8_t>(0x6506, 0);
    BIPLogic().BPActions->SetTileFunction(2, 43);
    EXPECT_EQ(Next(), "0r-g-0r-g-") << "nothing is said of these tiles";
    FlyWith("[BIPPanel1]\nT0=ADF\nT1=DME,Red\nT2=MKR,Yellow\nT23=BOTH,Red\n[BIPPanel2]\nT1=BOTH");
    sim.Set<uint8_t>(0x3122, 0x07);
    EXPECT_EQ(Next(), "3gry-0gry-");
    sim.Set<uint8_t>(0x3122, 0x26);
    EXPECT_EQ(Next(), "2-ryr0-ryr");
    EXPECT_EQ(Seen(2), "-g--");
    for (const uint32_t master : {0x281C, 0x2E80}) {
        sim.Set<int32_t>(master, 0);
        EXPECT_EQ(Next(), "1----1----");
        sim.Set<int32_t>(master, 1);
        EXPECT_EQ(Next(), "3-ryr0-ryr");
    }
    program->Windows.BIPSetupOpen = true;
    for (const uint32_t offset : {0x3122, 0x281C}) {
        sim.Set<uint8_t>(offset, 0);
        EXPECT_EQ(Next(), "0-ryr0-ryr") << "the setup window has the tiles";
    }
}

}  // namespace
