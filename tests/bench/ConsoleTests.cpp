#include <gtest/gtest.h>
#include <memory>
#include <string>

#include "bench/console/Command.h"
#include "bench/panels/PanelWords.h"
#include "bench/panels/VirtualPanel.h"
#include "bench/sim/SimConsole.h"

using namespace bench;

namespace {

TEST(ConsoleTest, SetsAndGetsAndAnswersNonsenseWithAnError) {
    const auto state = std::make_unique<SimState>();
    SimConsole console(*state, [](bool) { return true; });
    const auto say = [&](const std::string& line) { return console.Answer(ParseCommand(line)); };
    EXPECT_EQ(say("set 0x07F2 2 -700"), "ok");
    EXPECT_EQ(say("get 0x07f2 2"), "64836");
    EXPECT_EQ(say("get 2034 3"), "44FD00");
    for (const char* bad :
         {"get", "get 0xFFFF 2", "get 0 257", "set 0xFFFD 4 1", "set 0 3 1", "set 0 1 x",
          "set 0 1 0x", "set 0 1 0x100000000", "set 0x-1 1 1", "reply", "version x", "fly"}) {
        EXPECT_TRUE(say(bad).starts_with("error: ")) << bad;
    }
}

TEST(ConsoleTest, TellsADisplayOfTheRadioPanelInItsFivePlaces) {
    std::string report("\0\x01\x01\xD8\x01\x00\xFF\xFF\xDF\xDF\xDF\x0A\x0F\xDA\x02\xD9", 16);
    report += std::string(7, '\xFF');
    EXPECT_EQ(DescribeFeature("radio", report),
              R"(upper "118.10" "   . . ." lower "???.29." dark)");
}

TEST(ConsoleTest, TellsLampsOfTwoColorsBehindReportsThatShowNothing) {
    EXPECT_EQ(DescribeFeature("switch", {"\0\x2B", 2}), "gear nose yellow left green right red");
    VirtualPanel panel(*FindPanelKind("bip"), 1);
    const auto show = [&](std::initializer_list<uint8_t> report) {
        panel.TakeFeature({report.begin(), report.size()});
        return panel.Show();
    };
    EXPECT_EQ(show({0xB2, 0x01, 0, 0, 0, 0, 0}), "untouched");
    constexpr char kTiles[] = "tiles 0 green 9 red 23 yellow";
    EXPECT_EQ(show({0xB8, 0x01, 0, 0x80, 0, 0x02, 0x80}), kTiles);
    EXPECT_EQ(show({0xB2, 0x64}), kTiles);
    EXPECT_EQ(show({0xB8, 0, 0, 0, 0, 0, 0}), "tiles dark");
}

}  // namespace
