#include <cmath>
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
}

TEST(NumberTest, RoundsHalvesOfTheExactProductAwayFromZero) {
    // 0.145, 0.175 and 1.15 are a little less than they seem, 0.005 and 2.35 a little more.
    const auto fixed = [](double value, int decimals, int digits = 1) {
        std::string out = "x";
        AppendFixed(out, value, decimals, digits);
        return out;
    };
    const std::tuple<double, int, int, const char*> cases[] = {
        {0.7805F, 3, 1, "x0.780"},   {-0.0004, 3, 1, "x0.000"},    {-0.0006, 3, 1, "x-0.001"},
        {118.125F, 2, 1, "x118.13"}, {-345.25F, 1, 4, "x-0345.3"}, {-0.5, 0, 3, "x-001"},
        {0.145, 2, 1, "x0.14"},      {0.175, 2, 2, "x00.17"},      {-1.15, 1, 1, "x-1.1"},
        {0.005, 2, 1, "x0.01"},      {2.35, 1, 1, "x2.4"},         {9.9996, 3, 1, "x10.000"}};
    for (const auto& [value, decimals, digits, text] : cases)
        EXPECT_EQ(fixed(value, decimals, digits), text);
    EXPECT_EQ(fixed(1e30, 3) + fixed(-1e30, 3) + fixed(NAN, 1),
              "x9223372036854775.807x-9223372036854775.808x0.0");
}

TEST(NumberTest, ReadsFloatsWithPointOrComma) {
    for (const float number : {0.1F, 118.025F, 0.01F, -3.4e38F, 1e-45F, 16777216.0F}) {
        EXPECT_EQ(ParseFloat(FormatFloat(number), -3.4e38F, 3.4e38F), number);
    }
    EXPECT_EQ(FormatFloat(0.1F) + FormatFloat(1000), "0.11000");
    for (const char* text : {"2.5", " +02,50\t"}) EXPECT_EQ(ParseFloat(text, 2.5F, 2.5F), 2.5F);
    for (const char* text : {"", ".", "1.2,3", "1,000.5", "+-1", "1 2", "5x", "1e1", "0x1", "nan",
                             "inf", "-0.1", "100.1"}) {
        EXPECT_EQ(ParseFloat(text, 0, 100), std::nullopt) << text;
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
