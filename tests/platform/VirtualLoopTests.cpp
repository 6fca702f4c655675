#include <gtest/gtest.h>
#include <stdexcept>

#include "platform/Wait.h"
#include "platform/virtual/VirtualLoop.h"

namespace {

using Seen = std::vector<std::pair<char, uint64_t>>;

class VirtualLoopTest : public testing::Test {
  protected:
    std::function<void()> Note(char what) {
        return [this, what] { seen.emplace_back(what, clock.Elapsed()); };
    }

    VirtualClock clock{0xFFFFFFF0};  // the tick count wraps after 16 ms
    VirtualLoop loop{clock};
    Seen seen;
};

TEST_F(VirtualLoopTest, AdvanceRunsAllAtItsMomentAndEqualOnesAsPosted) {
    loop.StartTimer(10, Note('t'));
    loop.After(20, Note('a'));
    loop.Post(Note('p'));
    loop.After(10, [this] { loop.Post(Note('q')); });
    loop.Advance(25);
    EXPECT_EQ(seen, (Seen{{'p', 0}, {'t', 10}, {'q', 10}, {'a', 20}, {'t', 20}}));
    EXPECT_EQ(clock.Elapsed(), 25u);
    EXPECT_EQ(clock.GetTickCount(), 9u);
    EXPECT_EQ(loop.WaitingCount(), 0u);
}

TEST_F(VirtualLoopTest, HandlerThatSleepsMakesTicksLateNotMore) {
    loop.StartTimer(10, Note('t'));
    loop.After(15, [this] { clock.Sleep(32); });
    loop.Advance(60);
    EXPECT_EQ(seen, (Seen{{'t', 10}, {'t', 47}, {'t', 50}, {'t', 60}}));

    loop.After(1, [this] { clock.Sleep(20); });
    loop.Advance(2);
    EXPECT_EQ(seen.size(), 4u) << "due beyond the planned end";
    EXPECT_EQ(loop.WaitingCount(), 1u);
    loop.RunPending();
    EXPECT_EQ(seen.back(), (std::pair<char, uint64_t>{'t', 81}));
}

TEST_F(VirtualLoopTest, WaitWithinATickLetsTicksReenter) {
    int depth = 0;
    int deepest = 0;
    MessageLoop::TimerId timer = 0;
    timer = loop.StartTimer(10, [&] {
        deepest = std::max(deepest, ++depth);
        if (depth == 1) {
            Wait(clock, loop, 30, 5);
            loop.StopTimer(timer);
        }
        --depth;
    });
    loop.Advance(10);
    EXPECT_EQ(deepest, 2);
    EXPECT_EQ(clock.Elapsed(), 40u);
    EXPECT_EQ(loop.TimerCount(), 0u);
}

TEST_F(VirtualLoopTest, JumpsToWhatIsDueAndNeverHangs) {
    loop.After(5000, Note('a'));
    loop.RunUntil([this] { return !seen.empty(); });
    EXPECT_EQ(seen, (Seen{{'a', 5000}}));
    EXPECT_THROW(loop.RunUntil([] { return false; }), std::logic_error);
    EXPECT_THROW(loop.Run(), std::logic_error);
}

}  // namespace
