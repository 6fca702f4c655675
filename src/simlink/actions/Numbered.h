#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

// A value for each of a panel's controls, which are numbered First to Last. Other numbers read as
// an empty value, and setting them does nothing.
template <class Value, int32_t First, int32_t Last>
class Numbered {
  public:
    static constexpr int32_t kFirst = First;
    static constexpr int32_t kLast = Last;

    const Value& Get(int32_t number) const {
        static const Value kNothing{};
        return Holds(number) ? values_[Index(number)] : kNothing;
    }
    void Set(int32_t number, const Value& value) {
        if (Holds(number)) values_[Index(number)] = value;
    }

    static bool Holds(int32_t number) { return number >= First && number <= Last; }
    // Only for numbers that it holds.
    Value& operator[](int32_t number) { return values_[Index(number)]; }

  private:
    static size_t Index(int32_t number) { return static_cast<size_t>(number - First); }

    std::array<Value, static_cast<size_t>(Last - First + 1)> values_{};
};
