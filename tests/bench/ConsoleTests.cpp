#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <vector>

#include "bench/console/Command.h"
#include "bench/panels/PanelConsole.h"
#include "bench/sim/SimConsole.h"

namespace {

TEST(Command, IsSplitAtBlanksOutsideQuotes) {
    const Command command = ParseCommand("  title \"A=1; [B]  100%\" \"\" c\r");
    EXPECT_EQ(command.name, "title");
    EXPECT_EQ(command.arguments, (std::vector<std::string>{"A=1; [B]  100%", "", "c"}));
    EXPECT_EQ(command.Argument(3), "");
    EXPECT_EQ(ParseCommand(" \t").name, "");
}

TEST(Command, NumbersAreDecimalOrHexadecimalInsideTheirLimits) {
    EXPECT_EQ(ParseNumber("0x7cC", 0, 0xFFFF), 0x7CC);
    EXPECT_EQ(ParseNumber("-12", -100, 100), -12);
    for (const char* bad : {"", "0x", "0x-1", "0x10000", "7CC", "1x", "65536", "0x100000000"}) {
        EXPECT_FALSE(ParseNumber(bad, 0, 0xFFFF)) << bad;
    }
}

TEST(SimConsole, SetsAndGetsAndAnswersNonsenseWithAnError) {
    const auto state = std::make_unique<SimState>();
    SimConsole console(*state, [](bool) { return true; });
    const auto say = [&](const char* line) { return console.Answer(ParseCommand(line)); };
    EXPECT_EQ(say("set 0x07F2 2 -700"), "ok");
    EXPECT_EQ(say("get 0x07F2 2"), "64836");
    EXPECT_EQ(say("get 0x07F2 3"), "44FD00");
    EXPECT_EQ(say("version 0x19980004 7"), "ok");
    EXPECT_EQ(say("get 0x3308 4"), std::to_string(0xFADE0007));
    for (const char* bad : {"get", "get 0xFFFF 2", "get 0 257", "set 0xFFFD 4 1", "set 0 3 1",
                            "set 0 1 x", "reply", "version x", "fly"}) {
        EXPECT_TRUE(say(bad).starts_with("error: ")) << bad;
    }
}

class RecordingBus : public PanelBus {
  public:
    bool PlugIn(std::shared_ptr<VirtualPanel>) override { return true; }
    void Unplug(const VirtualPanel&) override {}
    void Send(const VirtualPanel&, const VirtualPanel::Report& report) override {
        log += HexText(report) + ' ';
    }
    int Readers(const VirtualPanel&) override { return 1; }
    void Pause(uint32_t milliseconds) override { log += std::to_string(milliseconds) + "ms "; }

    std::string log;
};

TEST(PanelConsole, MovesControlsByReportsAsThePanelDoes) {
    RecordingBus bus;
    PanelConsole console(bus);
    const auto reports = [&](const char* line) {
        bus.log.clear();
        EXPECT_EQ(console.Answer(ParseCommand(line)), "ok") << line;
        return bus.log;
    };
    EXPECT_EQ(console.Answer(ParseCommand("add multi")), "multi1");
    EXPECT_EQ(reports("selector multi1 hdg"), "00080000 ");
    EXPECT_EQ(reports("throttle multi1 arm"), "00088000 ");
    EXPECT_EQ(reports("knob multi1 -1 60"), "00488000 00088000 60ms 00488000 00088000 ");
    EXPECT_EQ(reports("press multi1 AP 700"), "00888000 700ms 00088000 ");
    EXPECT_EQ(reports("flaps multi1 down"), "00088002 ");
    EXPECT_EQ(reports("flaps multi1 up"), "00088001 ");
    for (const char* bad : {"knob multi1", "knob multi1 +0", "knob multi2 +1", "press multi1 XYZ",
                            "raw multi1 0 1 2", "raw multi1 0 1 2 256", "add toaster"}) {
        EXPECT_TRUE(console.Answer(ParseCommand(bad)).starts_with("error: ")) << bad;
    }
}

TEST(PanelConsole, TellsWhatAPersonSeesOnTheMultiPanel) {
    const PanelKind& kind = *FindPanelKind("multi");
    const std::string bytes("\0\x0A\x0E\x07\0\0\x0F\x0F\x0F\x0F\x0F\x82\0", 13);
    EXPECT_EQ(DescribeFeature(kind, bytes), "upper \" -700\" lower dark lights HDG REV");
}

}  // namespace
