#include <array>

#include "bench/virtual/VirtualCockpit.h"
#include "tests/panels/DeviceTest.h"

namespace {

constexpr Color kOff = 0, kRed = 0x0000FF, kGreen = 0x00FF00, kYellow = 0x00FFFF;
constexpr Color kButtonFace = 0x8000000F;  // of a tile that is off
constexpr size_t kTiles = 24;
using Tiles = std::array<Color, kTiles>;

Color FaceOf(Color color) { return color == kOff ? kButtonFace : color; }

// Its id, a bit of a green LED for each tile, row by row, and one of a red LED. Yellow is both.
Report ReportOf(const Tiles& tiles) {
    Report report = {0xB8, 0, 0, 0, 0, 0, 0};
    for (size_t tile = 0; tile < kTiles; ++tile) {
        const auto bit = static_cast<uint8_t>(1 << tile % 8);
        const Color color = tiles[tile];
        if (color == kGreen || color == kYellow) report[1 + tile / 8] |= bit;
        if (color == kRed || color == kYellow) report[4 + tile / 8] |= bit;
    }
    return report;
}

struct BIPPanelDeviceTest : DeviceTest<ctlBIPPanel, PanelKind::BIP> {
    Tiles tiles{};

    BIPPanelDeviceTest() { PlugIn(); }
};

TEST_F(BIPPanelDeviceTest, ComesUpInStepsWithABandThatRunsAlongTheTilesAndEndsDark) {
    Reports wanted = {{0xB2, 0}, {0xB2, 0, 0, 0, 0, 0, 0}, {0xB2, 0}, {0xB2, 0, 0, 0, 0, 0, 0}};
    for (uint8_t brightness = 5; brightness <= 100; brightness += 5)
        wanted.push_back({0xB2, brightness});
    EXPECT_EQ(Written(), wanted);
    panel->Splash();
    wanted = {ReportOf(tiles)};
    const std::array band = {kGreen, kYellow, kRed, kOff};
    for (size_t step = 0; step < 27; ++step)
        for (size_t behind = 0; behind < band.size(); ++behind) {
            if (step - behind >= kTiles) continue;
            tiles[step - behind] = band[behind];
            wanted.push_back(ReportOf(tiles));
        }
    wanted.push_back({0xB8, 0, 0, 0, 0, 0, 0});
    EXPECT_EQ(Written(), wanted);
    EXPECT_EQ(machine.clock.Elapsed(), 27U * 50);
    panel->TurnPanel(kRed);
    panel.reset();
    EXPECT_EQ(Written().back(), wanted.back());
}

TEST_F(BIPPanelDeviceTest, EachTileHasItsBitsAndOnlyChangesAreSent) {
    panel->TurnOff();  // as behind the splash
    Written();
    for (size_t tile = 0; tile < kTiles; ++tile)
        for (const Color color : {kRed, kGreen, kRed, kYellow, kGreen, kOff, kYellow, kOff, kGreen,
                                  kYellow, kRed, kOff, kRed}) {
            tiles[tile] = color;
            for (const Color asked : {color, FaceOf(color)})
                panel->TurnTile(static_cast<int16_t>(tile), asked);
            ASSERT_EQ(Written(), Reports{ReportOf(tiles)}) << tile << " " << color;
            ASSERT_EQ(panel->OnScreen.shpTile[tile].FillColor, FaceOf(color));
        }
    for (const Color color : {kYellow, kGreen, kRed, kOff}) {
        tiles.fill(color);
        for (const Color asked : {color, FaceOf(color)}) panel->TurnPanel(asked);
        EXPECT_EQ(Written(), Reports(2, ReportOf(tiles))) << "the whole panel is told in any case";
        for (const Shape& each : panel->OnScreen.shpTile) EXPECT_EQ(each.FillColor, FaceOf(color));
    }
    for (const int16_t none : {int16_t{-1}, int16_t{24}})
        panel->TurnTile(none, kRed), panel->SetTileLabel(none, "A");
    for (const Color second : {kRed, kRed, kYellow}) panel->TurnAllTiles(Tiles{kGreen, second});
    const Report greenAndRed = {
        0xB8,              // tiles
        0x01, 0x00, 0x00,  // green is the first one,
        0x02, 0x00, 0x00,  // red the second
    };
    const Report greenAndYellow = {
        0xB8,              // tiles
        0x03, 0x00, 0x00,  // the second has both
        0x02, 0x00, 0x00,  // LEDs
    };
    EXPECT_EQ(Written(), (Reports{greenAndRed, greenAndYellow}));
}

TEST(BIPPanelStartTest, TilesAreTurnedOffOnceMoreBehindTheSplash) {
    VirtualCockpit cockpit;
    const VirtualDevice& device = cockpit.Plug(PanelKind::BIP);
    cockpit.Start("");
    const Reports& reports = device.featureReports;
    ASSERT_GT(reports.size(), 4U);
    EXPECT_NE(*(reports.end() - 4), ReportOf({})) << "the band's last step but one";
    EXPECT_EQ(Reports(reports.end() - 3, reports.end()), Reports(3, ReportOf({})));
    EXPECT_EQ(cockpit.machine.clock.Elapsed(), 27U * 50);
}

TEST(BIPPanelPictureTest, NeedsNoDeviceAndPlacesCaptionsByTheNumberOfTheirLines) {
    VirtualCockpit bare;
    bare.Start("LoadWithoutPanels=1\r\n");
    bare.BIP().TurnTile(3, kGreen);
    BIPPanelPicture& drawn = bare.BIP().OnScreen;
    EXPECT_EQ(drawn.shpTile[3].FillColor, kGreen);
    constexpr Happening Lines{"Lines"};  // the top within the tile and the text of each
    const struct {
        const char* caption;
        std::string lines;
    } cases[] = {
        {"A", Lines(90, "", 270, "A", 450, "")},
        {"A.B.C.D", Lines(90, "", 270, "A", 450, "")},  // too many: nothing changes
        {"A.B", Lines(150, "A", 270, "", 390, "B")},
        {"", Lines(150, "", 270, "", 390, "")},
        {"A 1.B.C", Lines(90, "A 1", 270, "B", 450, "C")},
    };
    for (size_t tile = 0; tile < kTiles; ++tile)
        for (const auto& test : cases) {
            bare.BIP().SetTileLabel(static_cast<int16_t>(tile), test.caption);
            const Label &one = drawn.lblTileR1[tile], &two = drawn.lblTileR2[tile],
                        &three = drawn.lblTileR3[tile];
            const int top = static_cast<int>(tile) / 8 * 720;
            EXPECT_EQ(Lines(one.Top - top, one.Caption.Get(), two.Top - top, two.Caption.Get(),
                            three.Top - top, three.Caption.Get()),
                      test.lines)
                << tile;
        }
}

}  // namespace
