#pragma once

#include <concepts>
#include <cstdint>
#include <gtest/gtest.h>
#include <source_location>
#include <sstream>
#include <string>
#include <utility>

// A kind of thing that a test hears of, by its name. What has happened and what is expected are
// told in the same words, as in Pressed(1) + Released(1), so that a comparison is about order and
// completeness too.
struct Happening {
    const char* name;

    template <class... Values>
    std::string operator()(Values... values) const {
        std::ostringstream text;
        [[maybe_unused]] const char* mark = "(";
        text << ' ' << name;
        ((text << std::exchange(mark, ", "), Tell(text, values)), ...);
        text << (sizeof...(values) ? ")" : "");
        return text.str();
    }

  private:
    // Masks and offsets are known by their digits to the base of 16.
    static void Tell(std::ostream& text, std::integral auto value) {
        const auto number = static_cast<int64_t>(value);
        text << number;
        if (number > 255) text << std::hex << "=0x" << number << std::dec;
    }
    static void Tell(std::ostream& text, double value) { text << value; }
    static void Tell(std::ostream& text, const std::string& value) { text << value; }
};

inline constexpr const char* kNothing = "";

using Where = std::source_location;

// For a fixture's own expectations: fails at the line of the test that has them.
inline void ExpectAt(const Where& where, const std::string& actual, const std::string& expected,
                     const char* why = "") {
    const testing::ScopedTrace line(where.file_name(), static_cast<int>(where.line()), why);
    EXPECT_EQ(actual, expected);
}
