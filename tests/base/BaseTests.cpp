#include <gtest/gtest.h>
#include <memory>
#include <vector>

#include "base/Event.h"
#include "base/Number.h"
#include "base/Text.h"

namespace {

TEST(NumberTest, RoundsHalvesToEven) {
    const std::pair<double, int64_t> cases[] = {{0.5, 0},   {1.5, 2},      {2.5, 2},  {-0.5, 0},
                                                {-1.5, -2}, {359.99, 360}, {2.51, 3}, {-2.49, -2}};
    for (const auto& [value, rounded] : cases) EXPECT_EQ(RoundHalfEven(value), rounded) << value;
    EXPECT_EQ(RoundTo<int16_t>(1e9), 32767);
}

TEST(NumberTest, ReadsWholeNumbersOnly) {
    EXPECT_EQ(ParseInteger<int32_t>(" -12\t"), -12);
    EXPECT_EQ(ParseInteger<int32_t>("+7"), 7);
    EXPECT_EQ(ParseInteger<uint8_t>("255"), 255);
    for (const char* text : {"", " ", "+", "-", "+-1", "1.5", "0x20", "12a", "1 2", "256"}) {
        EXPECT_EQ(ParseInteger<uint8_t>(text), std::nullopt) << text;
    }
    EXPECT_EQ(ParseInteger<int32_t>("99999999999999999999"), std::nullopt);
}

TEST(NumberTest, Formats) {
    EXPECT_EQ(FormatInteger(-700, 4), "-0700");
    EXPECT_EQ(FormatInteger(123456, 5), "123456");
    EXPECT_EQ(FormatInteger(INT64_MIN), "-9223372036854775808");
    EXPECT_EQ(FormatPlain(3.999, 3), "3.999");
    EXPECT_EQ(FormatPlain(4, 3), "4");
    const std::pair<double, const char*> fixed[] = {{0.7805F, "0.780"},
                                                    {-0.0004, "0.000"},
                                                    {-0.0006, "-0.001"},
                                                    {9.9996, "10.000"},
                                                    {-1.5, "-1.500"},
                                                    {1e30, "9223372036854775.807"},
                                                    {-1e30, "-9223372036854775.808"}};
    for (const auto& [value, text] : fixed) {
        std::string out = "x";
        AppendFixed(out, value, 3);
        EXPECT_EQ(out, std::string("x") + text);
    }
}

TEST(TextTest, ComparesWithoutCaseInWindows1252) {
    EXPECT_TRUE(EqualNoCase("\xC4ndern\x8A", "\xE4NDERN\x9A"));
    EXPECT_FALSE(EqualNoCase("\xD7", "\xF7"));
    EXPECT_FALSE(EqualNoCase("a", "ab"));
    EXPECT_EQ(Trim(" \t a b \t"), "a b");
    // Neither sharp s nor the division sign have an upper case here.
    const std::string lower = "az{\xE4\xFE\x9A\x9C\x9E\xFF\xDF\xF7";
    const std::string upper = "AZ{\xC4\xDE\x8A\x8C\x8E\x9F\xDF\xF7";
    for (size_t i = 0; i < lower.size(); ++i) EXPECT_EQ(ToUpper(lower[i]), upper[i]) << i;
}

TEST(EventTest, ListenersMayComeAndGoWhileItIsRaised) {
    Event<int> event;
    std::vector<int> calls;
    ScopedConnection{event.Connect([&](int) { calls.push_back(99); })};
    Connection second;
    const Connection first = event.Connect([&](int n) {
        calls.push_back(n);
        second.Disconnect();
        if (n < 2) event.Connect([&](int m) { calls.push_back(100 + m); });
    });
    second = event.Connect([&](int n) { calls.push_back(10 + n); });
    event.Raise(1);
    EXPECT_EQ(calls, std::vector{1}) << "neither the one that has gone nor the one that has come";
    event.Raise(2);
    EXPECT_EQ(calls, (std::vector{1, 2, 102}));
}

TEST(EventTest, OwnerMayEndWhileItIsRaised) {
    auto event = std::make_unique<Event<>>();
    int calls = 0;
    event->Connect([&] {
        ++calls;
        event.reset();
    });
    event->Connect([&] { ++calls; });
    event->Raise();
    EXPECT_EQ(calls, 1);
}

}  // namespace
