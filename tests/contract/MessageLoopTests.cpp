#include <thread>
#include <vector>

#include "contract/ContractPlatform.h"

// Time is real on the real machine: lower limits are exact, upper ones generous.

namespace {

class MessageLoopContract : public ContractTest {
  protected:
    std::function<void()> Note(int what) {
        return [this, what] { seen.push_back(what); };
    }

    uint32_t Since(uint32_t start) { return clock.GetTickCount() - start; }

    Clock& clock = ports.clock;
    MessageLoop& loop = ports.loop;
    std::vector<int> seen;
};

TEST_F(MessageLoopContract, SleepTakesItsTime) {
    const uint32_t start = clock.GetTickCount();
    clock.Sleep(60);
    EXPECT_GE(Since(start), 40u) << "tick counts of the system are coarse";
    EXPECT_LT(Since(start), 5000u);
}

TEST_F(MessageLoopContract, OnePassRunsWhatWaitsInOrder) {
    loop.Post([this] {
        seen.push_back(1);
        loop.Post(Note(3));
    });
    loop.Post(Note(2));
    EXPECT_EQ(seen, std::vector<int>{});
    loop.RunPending();
    EXPECT_EQ(seen, (std::vector{1, 2})) << "what is posted meanwhile waits for the next pass";
    loop.RunPending();
    EXPECT_EQ(seen, (std::vector{1, 2, 3}));
    loop.RunPending();
    EXPECT_EQ(seen, (std::vector{1, 2, 3}));
}

TEST_F(MessageLoopContract, PassWithinAPassTakesTheRest) {
    loop.Post([this] {
        loop.RunPending();
        seen.push_back(1);
    });
    loop.Post(Note(2));
    loop.Post(Note(3));
    loop.RunPending();
    EXPECT_EQ(seen, (std::vector{2, 3, 1}));
}

TEST_F(MessageLoopContract, AnotherThreadMayPost) {
    std::thread([this] {
        for (const int what : {1, 2}) loop.Post(Note(what));
    }).join();
    loop.RunUntil([this] { return seen.size() == 2; });
    EXPECT_EQ(seen, (std::vector{1, 2}));
}

TEST_F(MessageLoopContract, TimerKeepsItsInterval) {
    const uint32_t start = clock.GetTickCount();
    const auto timer = loop.StartTimer(20, Note(1));
    EXPECT_NE(timer, 0u);
    loop.RunPending();
    EXPECT_TRUE(seen.empty()) << "the first tick comes after one interval";
    loop.RunUntil([this] { return seen.size() == 5; });
    EXPECT_GE(Since(start), 80u);
    EXPECT_LT(Since(start), 5000u);
    loop.StopTimer(timer);
}

TEST_F(MessageLoopContract, LateTicksDontPileUpAndAStoppedTimersTickIsDropped) {
    const auto timer = loop.StartTimer(100, Note(1));
    clock.Sleep(350);
    for (int pass = 0; pass < 2; ++pass) loop.RunPending();
    EXPECT_EQ(seen.size(), 1u);
    loop.RunUntil([this] { return seen.size() == 2; });
    clock.Sleep(150);
    for (const auto id : {timer, timer, MessageLoop::TimerId{0}}) loop.StopTimer(id);
    loop.RunPending();
    EXPECT_EQ(seen.size(), 2u);
}

TEST_F(MessageLoopContract, WhatALongTickMissesIsNotMadeUpFor) {
    const uint32_t start = clock.GetTickCount();
    const auto timer = loop.StartTimer(100, [this] {
        seen.push_back(1);
        if (seen.size() == 1) clock.Sleep(350);
    });
    loop.RunUntil([this] { return seen.size() == 3; });
    EXPECT_GE(Since(start), 480u) << "one late tick, and then the rhythm as before";
    loop.StopTimer(timer);
}

TEST_F(MessageLoopContract, TicksMayStopAndStartTimers) {
    MessageLoop::TimerId first = 0;
    MessageLoop::TimerId second = 0;
    MessageLoop::TimerId third = 0;
    first = loop.StartTimer(10, [&] {
        seen.push_back(1);
        loop.StopTimer(first);
        loop.StopTimer(second);
        third = loop.StartTimer(10, Note(3));
    });
    second = loop.StartTimer(400, Note(2));
    loop.RunUntil([this] { return seen.size() == 3; });
    EXPECT_EQ(seen, (std::vector{1, 3, 3}));
    EXPECT_NE(third, first);
    loop.StopTimer(third);
}

TEST_F(MessageLoopContract, TicksGoOnInAModalLoopWithinATick) {
    const auto timer = loop.StartTimer(10, Note(1));
    MessageLoop::TimerId modal = 0;
    modal = loop.StartTimer(15, [&] {
        loop.StopTimer(modal);
        const size_t before = seen.size();
        loop.RunUntil([&] { return seen.size() == before + 3; });
        seen.push_back(2);
    });
    loop.RunUntil([this] { return !seen.empty() && seen.back() == 2; });
    EXPECT_GE(seen.size(), 4u);
    loop.StopTimer(timer);
}

TEST_F(MessageLoopContract, QuitEndsEveryLoop) {
    loop.Post([this] {
        loop.Post([this] { loop.Quit(); });
        loop.RunUntil([] { return false; });
        seen.push_back(1);
    });
    loop.Run();
    EXPECT_EQ(seen, std::vector{1});
    loop.Run();
    EXPECT_EQ(seen, std::vector{1}) << "returns at once from now on";
}

TEST(MessageLoopEndContract, WaitingTasksAreDropped) {
    const auto held = std::make_shared<int>(0);
    {
        ContractPlatform machine;
        machine.Ports().loop.Post([held] { ++*held; });
        EXPECT_EQ(held.use_count(), 2);
    }
    EXPECT_EQ(held.use_count(), 1);
    EXPECT_EQ(*held, 0);
}

}  // namespace
