#include <gtest/gtest.h>

#include "bench/virtual/VirtualCockpit.h"

namespace {

using Reports = std::vector<VirtualDevice::Report>;
constexpr Color kFaces[] = {0x8000000F, 0x0000FF, 0x00FF00, 0x00FFFF};
const std::string kColors = "-rgy";  // of the faces, by the LEDs that are lit: red, green, both

struct BIPPanelDeviceTest : testing::Test, VirtualCockpit {
    VirtualDevice& device = Plug(PanelKind::BIP);
    const Reports starting = (Start(""), Sent());
    std::string tiles = std::string(24, '-');

    Reports Sent() { return std::exchange(device.featureReports, {}); }
    VirtualDevice::Report Report() const {
        VirtualDevice::Report report = {0xB8, 0, 0, 0, 0, 0, 0};
        for (size_t tile = 0; tile < 24; ++tile)
            for (const size_t led : {1, 2})
                if (kColors.find(tiles[tile]) & led)
                    report[tile / 8 + 7 - 3 * led] |= static_cast<uint8_t>(1 << tile % 8);
        return report;
    }
};

TEST_F(BIPPanelDeviceTest, ComesUpInStepsWithABandThatRunsAlongTheTilesAndEndsDark) {
    Reports wanted = {{0xB2, 0}, {0xB2, 0, 0, 0, 0, 0, 0}, {0xB2, 0}, {0xB2, 0, 0, 0, 0, 0, 0}};
    for (int n = 5; n <= 100; n += 5) wanted.push_back({0xB2, static_cast<uint8_t>(n)});
    wanted.push_back(Report());
    for (size_t step = 0; step < 27; ++step)
        for (const size_t behind : {0, 1, 2, 3}) {
            if (step - behind >= tiles.size()) continue;
            tiles[step - behind] = "gyr-"[behind];
            wanted.push_back(Report());
        }
    wanted.insert(wanted.end(), 2, Report());
    EXPECT_EQ(starting, wanted);
    EXPECT_EQ(machine.clock.Elapsed(), 27U * 50);
    BIP().TurnPanel(0x0000FF);
    program.reset();
    EXPECT_EQ(Sent().back(), Report());
}

TEST_F(BIPPanelDeviceTest, EachTileHasItsBitsAndOnlyChangesAreSent) {
    for (size_t tile = 0; tile < 24; ++tile)
        for (const char color : std::string("rgryg-y-gyr-r")) {
            const Color face = kFaces[kColors.find(tiles[tile] = color)];
            for (const Color asked : {color == '-' ? 0 : face, face})
                BIP().TurnTile(static_cast<int16_t>(tile), asked);
            ASSERT_EQ(Sent(), Reports{Report()}) << tile << color;
            ASSERT_EQ(BIP().OnScreen.shpTile[tile].FillColor, face);
        }
    for (const char color : std::string("ygr-")) {
        tiles.assign(24, color);
        const Color face = kFaces[kColors.find(color)];
        for (const Color asked : {color == '-' ? 0 : face, face}) BIP().TurnPanel(asked);
        EXPECT_EQ(Sent(), Reports(2, Report())) << "the whole panel is told in any case";
        for (const Shape& each : BIP().OnScreen.shpTile) EXPECT_EQ(each.FillColor, face);
    }
    for (const int16_t none : {int16_t{-1}, kBIPTiles})
        BIP().TurnTile(none, 0x0000FF), BIP().SetTileLabel(none, "A");
    for (const Color second : {0x0000FF, 0x0000FF, 0x00FFFF})
        BIP().TurnAllTiles(std::array<Color, 24>{0x00FF00, second});
    EXPECT_EQ(Sent(), (Reports{{0xB8, 1, 0, 0, 2, 0, 0}, {0xB8, 3, 0, 0, 2, 0, 0}}));
}

TEST(BIPPanelPictureTest, NeedsNoDeviceAndPlacesCaptionsByTheNumberOfTheirLines) {
    VirtualCockpit bare;
    bare.Start("LoadWithoutPanels=1\r\n");
    bare.BIP().TurnTile(3, 0x00FF00);
    BIPPanelPicture& drawn = bare.BIP().OnScreen;
    EXPECT_EQ(drawn.shpTile[3].FillColor, 0x00FF00U);
    for (int16_t tile = 0; tile < 24; ++tile) {
        std::string seen;
        for (const char* caption : {"A", "A.B.C.D", "A.B", "", "A 1.B.C"}) {
            bare.BIP().SetTileLabel(tile, caption);
            for (auto* lines : {&drawn.lblTileR1, &drawn.lblTileR2, &drawn.lblTileR3}) {
                const Label& line = (*lines)[static_cast<size_t>(tile)];
                seen += std::to_string(line.Top - tile / 8 * 720) + line.Caption.Get() + ' ';
            }
        }
        EXPECT_EQ(seen, "90 270A 450 90 270A 450 150A 270 390B 150 270 390 90A 1 270B 450C ");
    }
}

}  // namespace
