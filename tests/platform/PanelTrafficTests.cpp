#include <gtest/gtest.h>
#include <string>

#include "platform/FeatureBacklog.h"
#include "platform/virtual/VirtualPlatform.h"

using std::chrono::milliseconds;

namespace {

// Reports of an id and a value, as "0a".
struct BacklogTest : testing::Test {
    void Add(uint8_t id, char value, int afterMs = 0) {
        now += milliseconds(afterMs);
        const uint8_t report[] = {id, static_cast<uint8_t>(value)};
        EXPECT_TRUE(backlog.Add(report, now));
    }
    std::string Sent(int tookMs = 1) {
        std::string sent;
        while (!backlog.Empty()) {
            FeatureBytes report = backlog.Take(milliseconds(tookMs));
            sent += static_cast<char>('0' + report.Span()[0]);
            sent += static_cast<char>(report.Span()[1]);
        }
        return sent;
    }

    FeatureBacklog backlog;
    FeatureBacklog::SteadyClock::time_point now{};
};

TEST_F(BacklogTest, AllGoOutWhileThePanelKeepsUp) {
    for (const char value : {'a', 'b', 'a'}) Add(0, value);
    Add(1, 'c');
    Add(0, 'd', 20);
    EXPECT_EQ(Sent(20), "0a0b0a1c0d");
}

TEST_F(BacklogTest, OnlyTheLatestOfEachIdWaitsOnceItFallsBehind) {
    for (const char value : {'a', 'b'}) Add(0, value);
    Add(1, 'c');
    EXPECT_EQ(Sent(21), "0b1c") << "the report before has taken too long";

    Add(1, 'c');
    for (const char value : {'a', 'b', 'd'}) Add(0, value, 7);
    EXPECT_EQ(Sent(), "1c0d") << "one has waited too long";

    for (int i = 0; i < 1000; ++i) Add(0, 'x');
    EXPECT_LE(Sent().size(), 130u) << "memory is bounded";
}

TEST_F(BacklogTest, WhatIsNoReportIsNotTaken) {
    EXPECT_FALSE(backlog.Add({}, now));
    EXPECT_FALSE(backlog.Add(std::array<uint8_t, FeatureBytes::kLongest + 1>{}, now));
    EXPECT_TRUE(backlog.Empty());
}

struct FloodTest : testing::Test {
    FloodTest() {
        link->DeviceAddress = "panel";
        link->RawInput.Connect([this](uint8_t, uint8_t, uint8_t, uint8_t value) {
            seen += std::to_string(value) + ' ';
            if (act) act();
        });
        link->StartReading();
    }
    void Send(int first, int last) {
        for (int i = first; i <= last; ++i) panel.SendReport({0, 0, 0, static_cast<uint8_t>(i)});
    }

    VirtualPlatform machine;
    VirtualDevice& panel = machine.bus.Add(1, 2, "panel");
    std::unique_ptr<PanelLink> link = machine.deckhub.CreateLink();
    std::function<void()> act;
    std::string seen;
};

TEST_F(FloodTest, ReportsLeaveRoomForOthersAndNoneIsLost) {
    Send(1, 20);
    machine.loop.Post([this] { seen += "tick "; });
    machine.loop.Advance(0);
    EXPECT_EQ(seen, "1 2 3 4 5 6 7 8 tick 9 10 11 12 13 14 15 16 17 18 19 20 ");
}

TEST_F(FloodTest, WhatAReportOpensLetsTheNextOnesIn) {
    act = [this] {
        act = nullptr;
        machine.loop.RunPending();
        machine.loop.RunPending();
        seen += "done ";
    };
    Send(1, 3);
    machine.loop.Advance(0);
    EXPECT_EQ(seen, "1 2 3 done ");
}

TEST_F(FloodTest, TheLastStateOutlivesAFloodThatNobodyTakes) {
    for (int i = 0; i < 70'000; ++i) panel.SendReport({0, 0, 0, 0});
    Send(9, 9);
    machine.loop.Advance(0);
    EXPECT_LT(seen.size(), 140'000u);
    EXPECT_EQ(seen.substr(seen.size() - 4), "0 9 ");
}

TEST_F(FloodTest, NothingComesAfterTheReadingHasEndedWithinAReport) {
    act = [this] { link->StopReading(); };
    Send(1, 3);
    machine.loop.Advance(0);
    EXPECT_EQ(seen, "1 ");
}

}  // namespace
