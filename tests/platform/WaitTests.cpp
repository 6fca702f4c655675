#include <gtest/gtest.h>

#include "platform/Wait.h"
#include "platform/virtual/VirtualClock.h"
#include "platform/virtual/VirtualLoop.h"

namespace {

struct WaitTest : testing::Test {
    VirtualClock clock{0xFFFFFFF0};  // the clock wraps during the wait
    VirtualLoop loop{clock};
};

TEST_F(WaitTest, SleepsInPausesAndLetsMessagesRunAfterEach) {
    int ticks = 0;
    loop.StartTimer(10, [&] { ++ticks; });
    EXPECT_FALSE(Wait(clock, loop, 0, 25));
    EXPECT_FALSE(Wait(clock, loop, 100, 25));
    EXPECT_EQ(clock.Elapsed(), 100U);
    EXPECT_EQ(ticks, 4);
}

TEST_F(WaitTest, CancelEndsItAfterTheMessagesThatSetIt) {
    bool cancel = false;
    loop.After(30, [&] { cancel = true; });
    EXPECT_TRUE(Wait(clock, loop, 100, 25, &cancel));
    EXPECT_EQ(clock.Elapsed(), 50U);
}

TEST_F(WaitTest, MayBeReentered) {
    loop.After(10, [&] { EXPECT_FALSE(Wait(clock, loop, 200, 50)); });
    EXPECT_FALSE(Wait(clock, loop, 100, 25));
    EXPECT_EQ(clock.Elapsed(), 225U) << "the inner wait holds up the outer one";
}

}  // namespace
