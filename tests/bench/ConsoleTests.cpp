#include <gtest/gtest.h>
#include <memory>
#include <string>

#include "bench/console/Command.h"
#include "bench/sim/SimConsole.h"

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

}  // namespace
