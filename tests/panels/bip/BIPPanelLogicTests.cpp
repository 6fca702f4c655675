#include <array>
#include <vector>

#include "tests/panels/PanelFlight.h"

namespace {

constexpr Color kRed = 0x0000FF, kGreen = 0x00FF00, kYellow = 0x00FFFF;
constexpr Color kDark = 0x8000000F;  // the button face
using Faces = std::array<Color, 4>;  // of the tiles 0, 1, 2 and 23

constexpr Happening Sends{"Sends"};  // so many reports
constexpr Happening Face{"Face"};

// What two ticks send, and the same faces after each.
std::string Ticks(int first, int second, const Faces& faces) {
    std::string shown;
    for (const Color face : faces) shown += Face(face);
    return Sends(first) + shown + Sends(second) + shown;
}

struct BIPPanelFlight : PanelFlight {
    VirtualDevice &device = Plug(PanelKind::BIP), &device2 = Plug(PanelKind::BIP, 2);
    void TestBody() override {}
    Faces Shown(int number = 1) {
        const auto& tiles = BIP(number).OnScreen.shpTile;
        return {tiles[0].FillColor, tiles[1].FillColor, tiles[2].FillColor, tiles[23].FillColor};
    }
    std::string NextTicks() {
        std::string text;
        for (int tick = 0; tick < 2; ++tick) {
            device.featureReports.clear();
            Tick();
            text += Sends(device.featureReports.size());
            for (const Color face : Shown()) text += Face(face);
        }
        return text;
    }
};

enum class Mode { Any, NotNGX, NGX };
using enum Mode;
enum class Tile { On, Off, Kept, Red, Green, Yellow };  // On is its own colour
using enum Tile;

// What the simulator has at each place that the function reads, and what the tile shows then.
struct Case {
    std::vector<double> values;
    Tile tile;
};
using Cases = std::vector<Case>;

Cases ByteBit(int bit) { return {{{1.0 * bit}, On}, {{1.0 * (0xFF ^ bit)}, Off}}; }
Cases WordBit(int bit) { return {{{1.0 * bit}, On}, {{1.0 * (0xFFFF ^ bit)}, Off}}; }
Cases NotZero() { return {{{0}, Off}, {{1}, On}, {{2}, On}}; }
Cases OnlyAt1() { return {{{0}, Off}, {{1}, On}, {{2}, Off}}; }
Cases Below(double limit) { return {{{limit - 1}, On}, {{limit}, Off}, {{limit + 1}, Off}}; }
Cases Above(double limit) { return {{{limit - 1}, Off}, {{limit}, Off}, {{limit + 1}, On}}; }

struct Function {
    const char* key;
    Mode mode;
    Cases cases;
    int threshold = -1;  // the function's own one
};
struct Place {
    const char* name;
    int32_t offset;
    int32_t type;
};
// Functions that read the same places.
struct Group {
    std::vector<Place> reads;
    std::vector<Function> functions;
};

constexpr int D = 16383;  // a gear that is down; 0 is up, all else on the way
// clang-format off
const Group kGroups[] = {
    {{},
     {{"NO_TILE", Any, {{{}, Off}}}, {"MASTER_CAUTION", NotNGX, {{{}, Kept}}},
      {"AP_PRST", NotNGX, {{{}, Kept}}}, {"AT_PRST", NotNGX, {{{}, Kept}}},
      {"FMC_PRST", NotNGX, {{{}, Kept}}}}},
    {{{"ROTOR-RPM", 0x0908, 5}}, {{"ROTOR_LOW_RPM", Any, {{{16384}, Kept}}}}},
    {{{"ENGINE-FIRE", 0x3366, 1}},
     {{"ENG_FIRE", NotNGX, {{{0}, Off}, {{1}, On}, {{128}, On}}},
      {"ENG_1_FIRE", NotNGX, ByteBit(0x01)}, {"ENG_2_FIRE", NotNGX, ByteBit(0x02)},
      {"ENG_3_FIRE", Any, ByteBit(0x04)}, {"ENG_4_FIRE", Any, ByteBit(0x08)},
      {"LEFT_ENG_FIRE", NotNGX, ByteBit(0x01)}}},
    {{{"NGX-FIRE-ENG1", 0x6504, 1}}, {{"LEFT_ENG_FIRE", NGX, NotZero()}}},
    {{{"ENGINE-FIRE", 0x3366, 1}}, {{"RIGHT_ENG_FIRE", NotNGX, ByteBit(0x02)}}},
    {{{"NGX-FIRE-ENG2", 0x6505, 1}}, {{"RIGHT_ENG_FIRE", NGX, NotZero()}}},
    {{{"NGX-FIRE-ENG1", 0x6504, 1}, {"NGX-FIRE-ENG2", 0x6505, 1}},
     {{"ENG_FIRE", NGX, {{{0, 0}, Off}, {{2, 0}, On}, {{0, 2}, On}}},
      {"ENG_1_FIRE", NGX, {{{2, 0}, On}, {{0, 2}, Off}}},
      {"ENG_2_FIRE", NGX, {{{2, 0}, Off}, {{0, 2}, On}}}}},
    {{{"ENG1-FUEL-PRESSURE", 0x08F8, 5}}, {{"LOW_PRESSURE", NotNGX, Below(570)}}},
    {{{"NGX-FCTL_annunLOW_PRESSURE", 0x644B, 1}}, {{"LOW_PRESSURE", NGX, OnlyAt1()}}},
    {{{"ENG1-OIL-PRESSURE", 0x08BA, 3}},
     {{"OIL_PRESSURE", NotNGX, Below(6000)}, {"OIL_PRESSURE", NotNGX, {{{0}, Off}}, 0},
      {"OIL_PRESSURE", NotNGX, {{{29999}, On}, {{30000}, Off}}, 100}}},
    {{{"NGX-APU_annunLOW_OIL_PRESSURE", 0x6491, 1}}, {{"OIL_PRESSURE", NGX, OnlyAt1()}}},
    {{{"ENG1-OIL-PRESSURE", 0x08BA, 3}}, {{"ENG_1_OIL_PRESSURE", NotNGX, Below(6000)}}},
    {{{"NGX-FCTL_annunFC_LOW_PRESSURE1", 0x6447, 1}}, {{"ENG_1_OIL_PRESSURE", NGX, OnlyAt1()}}},
    {{{"ENG2-OIL-PRESSURE", 0x0952, 3}}, {{"ENG_2_OIL_PRESSURE", NotNGX, Below(6000)}}},
    {{{"NGX-FCTL_annunFC_LOW_PRESSURE2", 0x6448, 1}}, {{"ENG_2_OIL_PRESSURE", NGX, OnlyAt1()}}},
    {{{"ENG3-OIL-PRESSURE", 0x09EA, 3}}, {{"ENG_3_OIL_PRESSURE", Any, Below(6000)}}},
    {{{"ENG4-OIL-PRESSURE", 0x0A82, 3}}, {{"ENG_4_OIL_PRESSURE", Any, Below(6000)}}},
    {{{"ENG1-OIL-TEMP", 0x08B8, 3}},
     {{"ENG_OIL_TEMP", Any, Above(15210)},
      {"ENG_OIL_TEMP", Any, {{{23400}, Off}, {{23401}, On}}, 100},
      {"ENG_1_OIL_TEMP", Any, Above(15210)}}},
    {{{"ENG2-OIL-TEMP", 0x0950, 3}}, {{"ENG_2_OIL_TEMP", Any, Above(15210)}}},
    {{{"ENG3-OIL-TEMP", 0x09E8, 3}}, {{"ENG_3_OIL_TEMP", Any, Above(15210)}}},
    {{{"ENG4-OIL-TEMP", 0x0A80, 3}}, {{"ENG_4_OIL_TEMP", Any, Above(15210)}}},
    {{{"FUEL-CAPACITY", 0x1240, 5}, {"FUEL-QUANTITY", 0x1264, 5}},
     {{"FUEL_LOW", NotNGX, {{{0, 9}, Kept}, {{1000, 149}, On}, {{1000, 150}, Off},
           {{1000, 151}, Off}, {{0x800000, 0x13FFFF}, On}}}}},
    {{{"NGX-WARN_annunFUEL", 0x650A, 1}}, {{"FUEL_LOW", NGX, OnlyAt1()}}},
    {{{"LEFT-TANK-LEVEL", 0x0B7C, 5}},
     {{"LEFT_FUEL_LOW", Any, {{{0xCCCCC}, On}, {{0x13A613}, On}, {{0x13A614}, Off},
           {{0x13A615}, Off}}},
      {"LEFT_FUEL_LOW", Any, {{{0x7F0000}, On}, {{0x800000}, Off}}, 100}}},
    {{{"CENTER-TANK-LEVEL", 0x0B74, 5}}, {{"CENTRE_FUEL_LOW", Any, Below(0x13A614)}}},
    {{{"RIGHT-TANK-LEVEL", 0x0B94, 5}}, {{"RIGHT_FUEL_LOW", Any, Below(0x13A614)}}},
    {{{"CROSSFEED-SWITCH", 0x341F, 1}}, {{"FUEL_CROSS_FEED", NotNGX, NotZero()}}},
    {{{"NGX-FUEL_annunXFEED_VALVE_OPEN", 0x6469, 1}}, {{"FUEL_CROSS_FEED", NGX, OnlyAt1()}}},
    {{{"GEARNOSE", 0x0BEC, 4}, {"GEARRIGHT", 0x0BF0, 4}, {"GEARLEFT", 0x0BF4, 4}},
     {{"GEAR_DOWN", NotNGX, {{{D, D, D}, On}, {{0, D, D}, Off}, {{D, 1, D}, Off},
           {{D, D, 1}, Off}}},
      {"GEAR_UP", NotNGX, {{{0, 0, 0}, On}, {{1, 0, 0}, Off}, {{0, D, 0}, Off}, {{0, 0, 1}, Off}}},
      {"GEAR_UNSAFE", NotNGX, {{{0, D, 0}, Off}, {{1, 0, 0}, On}, {{D, 16384, 0}, On},
           {{0, 0, -1}, On}}},
      {"COMBINED_GEAR", NotNGX, {{{0, 0, 0}, Off}, {{D, D, D}, Green}, {{D, 0, 0}, Kept},
           {{1, 0, 0}, Red}, {{0, 1, D}, Red}}},
      {"NOSE_GEAR", NotNGX, {{{0, 1, D}, Off}, {{D, 0, 1}, Green}, {{1, D, 0}, Red}}},
      {"RIGHT_GEAR", NotNGX, {{{1, 0, D}, Off}, {{0, D, 1}, Green}, {{D, 1, 0}, Red}}},
      {"LEFT_GEAR", NotNGX, {{{1, D, 0}, Off}, {{0, 1, D}, Green}, {{D, 0, 1}, Red}}}}},
    {{{"NGX-MAIN_annunGEAR_transit1", 0x6570, 1}, {"NGX-MAIN_annunGEAR_transit2", 0x6571, 1},
      {"NGX-MAIN_annunGEAR_transit3", 0x6572, 1}, {"NGX-MAIN_annunGEAR_locked1", 0x6573, 1},
      {"NGX-MAIN_annunGEAR_locked2", 0x6574, 1}, {"NGX-MAIN_annunGEAR_locked3", 0x6575, 1}},
     {{"GEAR_DOWN", NGX, {{{0, 0, 0, 1, 1, 1}, On}, {{1, 1, 1, 1, 1, 1}, On},
           {{0, 0, 0, 2, 1, 1}, Off}, {{0, 0, 1, 1, 1, 0}, Off}}},
      {"GEAR_UP", NGX, {{{0, 0, 0, 0, 0, 0}, On}, {{2, 2, 2, 2, 2, 2}, On},
           {{0, 1, 0, 0, 0, 0}, Off}, {{0, 0, 0, 0, 0, 1}, Off}}},
      {"GEAR_UNSAFE", NGX, {{{0, 0, 0, 0, 1, 1}, Off}, {{2, 0, 0, 1, 0, 0}, Off},
           {{1, 0, 0, 0, 1, 1}, On}, {{0, 1, 0, 1, 0, 1}, On}}},
      {"COMBINED_GEAR", NGX, {{{0, 0, 0, 0, 0, 0}, Off}, {{0, 0, 0, 1, 1, 1}, Green},
           {{0, 0, 0, 1, 0, 0}, Kept}, {{1, 0, 0, 0, 1, 1}, Red}}},
      {"NOSE_GEAR", NGX, {{{1, 0, 1, 1, 0, 1}, Off}, {{0, 1, 0, 0, 1, 0}, Green},
           {{0, 1, 0, 1, 0, 1}, Red}}},
      {"RIGHT_GEAR", NGX, {{{0, 1, 1, 0, 1, 1}, Off}, {{1, 0, 0, 1, 0, 0}, Green},
           {{1, 0, 0, 0, 1, 1}, Red}}},
      {"LEFT_GEAR", NGX, {{{1, 1, 0, 1, 1, 0}, Off}, {{0, 0, 1, 0, 0, 1}, Green},
           {{0, 0, 1, 1, 1, 0}, Red}}}}},
    {{{"RADIO-IDENT-SWITCHES", 0x3122, 1}},
     {{"DME", Any, ByteBit(0x02)}, {"NAV_1", Any, ByteBit(0x10)}, {"NAV_2", Any, ByteBit(0x08)},
      {"COM_1", Any, ByteBit(0x80)}, {"COM_2", Any, ByteBit(0x40)}, {"BOTH", Any, ByteBit(0x20)},
      {"MKR", Any, ByteBit(0x04)}, {"ADF", Any, ByteBit(0x01)}}},
    {{{"NAV-GPS-SWITCH", 0x132C, 5}}, {{"GPS", Any, OnlyAt1()}, {"NAV", Any, Below(1)}}},
    {{{"AP-MASTER-SWITCH", 0x07BC, 5}},
     {{"AUTO_PILOT", Any, OnlyAt1()}, {"AP_MASTER", Any, OnlyAt1()}}},
    {{{"LIGHTS-SWITCHES", 0x0D0C, 3}},
     {{"BEACON_LIGHT", Any, WordBit(0x02)}, {"LANDING_LIGHT", Any, WordBit(0x04)},
      {"STROBE_LIGHT", NotNGX, WordBit(0x10)}, {"STROBE_LIGHT", NGX, WordBit(0x01)},
      {"NAV_LIGHT", Any, WordBit(0x01)}, {"TAXI_LIGHT", Any, WordBit(0x08)},
      {"INSTR_LIGHT", Any, WordBit(0x20)}, {"RECOG_LIGHT", Any, WordBit(0x40)},
      {"WING_LIGHT", Any, WordBit(0x80)}, {"LOGO_LIGHT", Any, WordBit(0x100)},
      {"CABIN_LIGHT", Any, WordBit(0x200)}}},
    {{{"VAC-PRESSURE", 0x0B18, 8}},
     {{"VAC_LOW", Any, {{{2.999}, On}, {{3}, Off}, {{3.001}, Off}}}}},
    {{{"STALL-WARNING", 0x036C, 1}}, {{"STALL_WARNING", Any, OnlyAt1()}}},
    {{{"DOORS-OPEN", 0x3367, 1}}, {{"DOOR_WARNING", NotNGX, NotZero()}}},
    {{{"NGX-WARN_annunDOORS", 0x6510, 1}}, {{"DOOR_WARNING", NGX, OnlyAt1()}}},
    {{{"PITOT-SWITCH", 0x029C, 1}}, {{"PITOT_HEAT", NotNGX, OnlyAt1()}}},
    {{{"NGX-ICE_annunCAPT_PITOT", 0x64AE, 1}}, {{"PITOT_HEAT", NGX, OnlyAt1()}}},
    {{{"PARKING-BRAKE", 0x0BC8, 3}},
     {{"PARKING_BRAKES", NotNGX, {{{0}, Off}, {{1}, On}, {{32767}, On}}}}},
    {{{"NGX-PED_annunParkingBrake", 0x65A7, 1}}, {{"PARKING_BRAKES", NGX, OnlyAt1()}}},
    {{{"INNER-MARKER", 0x0BAC, 3}, {"MIDDLE-MARKER", 0x0BAE, 3}, {"OUTER-MARKER", 0x0BB0, 3}},
     {{"OUTER_MARKER", Any, {{{0, 0, 256}, On}, {{1, 1, 0}, Off}}},
      {"MIDDLE_MARKER", Any, {{{0, 256, 0}, On}, {{1, 0, 1}, Off}}},
      {"INNER_MARKER", Any, {{{256, 0, 0}, On}, {{0, 1, 1}, Off}}},
      {"COMBINED_OMI", Any, {{{0, 0, 0}, Off}, {{0, 0, 256}, Green}, {{0, 256, 0}, Red},
           {{0, 1, 1}, Red}, {{256, 0, 0}, Yellow}, {{1, 0, 1}, Yellow}, {{1, 1, 1}, Yellow}}}}},
    {{{"NGX-WARN_annunMASTER_CAUTION", 0x6506, 1}}, {{"MASTER_CAUTION", NGX, OnlyAt1()}}},
    {{{"NGX-MAIN_annunAP1", 0x6550, 1}, {"NGX-ANY_AP_Mode", 0x6545, 5}},
     {{"AP_PRST", NGX, {{{0, 0}, Off}, {{0, 1}, Off}, {{1, 0}, Red}, {{2, 0}, Red},
           {{1, 1}, Yellow}, {{2, 256}, Yellow}}}}},
    {{{"NGX-MAIN_annunAT1", 0x6552, 1}}, {{"AT_PRST", NGX, {{{0}, Off}, {{1}, Red}, {{2}, Red}}}}},
    {{{"NGX-MAIN_annunFMC1", 0x6554, 1}},
     {{"FMC_PRST", NGX, {{{0}, Off}, {{1}, Red}, {{2}, Red}}}}},
};
// clang-format on

// Tiles 0, red, and 23, green, have the function, the others none; all were yellow before.
void ExpectTiles(BIPPanelFlight& flight, Tile tile) {
    const std::array faces = {kRed, kDark, kYellow, kRed, kGreen, kYellow};  // as Tile names them
    const Color face = faces[static_cast<size_t>(tile)];
    EXPECT_EQ(flight.Shown(), (Faces{face, kDark, kDark, tile == On ? kGreen : face}));
}

// In a program of its own, which reads the title and the masters besides.
void FlyFunction(const Group& group, const Function& function, const std::string& mode) {
    SCOPED_TRACE(mode + " " + function.key);
    BIPPanelFlight flight;
    const std::string key = function.key;
    const std::string end = function.threshold < 0 ? "" : "," + std::to_string(function.threshold);
    flight.FlyWith("[Common]\nSpecialMode=" + mode + "\n[BIPPanel1]\nT0=" + key + ",Red" + end +
                   "\nT23=" + key + ",Green" + end);
    const cOffsetTable& table = flight.program->Session.OffsetTable;
    EXPECT_EQ(table.Shape(), 4 + group.reads.size());
    for (const Place& place : group.reads) {
        const cOFFSET* entry = table.Item(place.name);
        ASSERT_TRUE(entry) << place.name;
        EXPECT_EQ(entry->Offset, place.offset) << place.name;
        EXPECT_EQ(entry->DataType(), place.type) << place.name;
    }
    for (const Case& test : function.cases) {
        for (size_t i = 0; i < test.values.size(); ++i) {  // upward: each one's bytes stay
            const double value = test.values[i];
            const auto at = static_cast<uint32_t>(group.reads[i].offset);
            flight.Simulator<int32_t>(at, static_cast<int32_t>(value));
            if (group.reads[i].type == 8) flight.Simulator<double>(at, value);
        }
        flight.BIP().TurnPanel(kYellow);
        flight.Tick();
        SCOPED_TRACE(testing::PrintToString(test.values));
        ExpectTiles(flight, test.tile);
    }
}

TEST_F(BIPPanelFlight, FunctionsReadWhatTheyNeedAndLightByIt) {
    for (const std::string mode : {"", "maddog", "ngx"})
        for (const Group& group : kGroups)
            for (const Function& function : group.functions)
                if (function.mode != (mode == "ngx" ? NotNGX : NGX))
                    FlyFunction(group, function, mode);
}

TEST_F(BIPPanelFlight, OnlyChangesAreSentButADarkPanelIsToldAtEveryTick) {
    for (const uint32_t lit : {0x0BAC, 0x0BB0, 0x6506}) Simulator<uint8_t>(lit, 1);
    FlyWith("[Common]\nSpecialMode=ngx\n[BIPPanel1]\nT0=MASTER_CAUTION,Red\nT1=COMBINED_OMI,Red");
    EXPECT_EQ(NextTicks(), Ticks(2, 2, {kRed, kYellow, kDark, kDark}))
        << "the tile of both markers changes twice";
    const VirtualDevice::Report first = {
        0xB8,              // tiles
        0x02, 0x00, 0x00,  // the second one green on its way to yellow
        0x01, 0x00, 0x00,  // the first one red
    };
    EXPECT_EQ(device.featureReports[0], first);
    FlyWith("[BIPPanel1]\nT0=MASTER_CAUTION,Green\nT2=GEAR_UP,Green");
    EXPECT_EQ(BIP().OnScreen.lblTileR3[2].Caption.Get(), "UP");
    Simulator<uint8_t>(0x6506, 0);
    BIPLogic().BPActions->SetTileFunction(2, 43);
    EXPECT_EQ(NextTicks(), Ticks(0, 0, {kRed, kDark, kGreen, kDark}))
        << "nothing is said of these tiles";
    FlyWith("[BIPPanel1]\nT0=ADF\nT1=DME,Red\nT2=MKR,Yellow\nT23=BOTH,Red\n[BIPPanel2]\nT1=BOTH");
    Simulator<uint8_t>(0x3122, 0x07);
    EXPECT_EQ(NextTicks(), Ticks(3, 0, {kGreen, kRed, kYellow, kDark}));
    Simulator<uint8_t>(0x3122, 0x26);
    EXPECT_EQ(NextTicks(), Ticks(2, 0, {kDark, kRed, kYellow, kRed}));
    EXPECT_EQ(Shown(2), (Faces{kDark, kGreen, kDark, kDark}));
    for (const uint32_t master : {kBatteryMaster, kAvionicsMaster}) {
        Simulator<int32_t>(master, 0);
        EXPECT_EQ(NextTicks(), Ticks(1, 1, {kDark, kDark, kDark, kDark}));
        Simulator<int32_t>(master, 1);
        EXPECT_EQ(NextTicks(), Ticks(3, 0, {kDark, kRed, kYellow, kRed}));
    }
    device.featureReports.clear();
    LoseSimulator();
    EXPECT_TRUE(device.featureReports.empty()) << "the tiles stay";
    Connect();
    program->Windows.BIPSetupOpen = true;
    for (const uint32_t offset : {0x3122, 0x281C}) {
        Simulator<uint8_t>(offset, 0);
        EXPECT_EQ(NextTicks(), Ticks(0, 0, {kDark, kRed, kYellow, kRed}))
            << "the setup window has the tiles";
    }
}

}  // namespace
