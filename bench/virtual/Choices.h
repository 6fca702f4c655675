#pragma once

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <random>
#include <span>
#include <string>

// Where all that happens at random comes from: a seed, or the bytes of a fuzz target.
class Choices {
  public:
    virtual ~Choices() = default;

    // 0 to `count` - 1.
    virtual uint32_t Below(uint32_t count) = 0;
    // Nothing new comes any more: every choice is 0 from here on.
    virtual bool Ended() const { return false; }

    bool OneIn(uint32_t count) { return Below(count) == 0; }
    int32_t Between(int32_t low, int32_t high) {
        return low + static_cast<int32_t>(Below(static_cast<uint32_t>(high - low) + 1));
    }
    uint8_t Byte() { return static_cast<uint8_t>(Below(256)); }
    template <class List>
    decltype(auto) OneOf(const List& list) {
        return std::begin(list)[Below(static_cast<uint32_t>(std::size(list)))];
    }
};

// The same on every machine for the same seed.
class SeededChoices : public Choices {
  public:
    explicit SeededChoices(uint32_t seed) : random_(seed) {}
    uint32_t Below(uint32_t count) override {
        return static_cast<uint32_t>(uint64_t{static_cast<uint32_t>(random_())} * count >> 32);
    }

  private:
    std::mt19937 random_;
};

class ByteChoices : public Choices {
  public:
    explicit ByteChoices(std::span<const uint8_t> bytes) : bytes_(bytes) {}
    uint32_t Below(uint32_t count) override {
        uint32_t number = Next();
        if (count > 256) number = number << 8 | Next();
        return number % count;
    }
    bool Ended() const override { return bytes_.empty(); }
    // What hasn't been taken yet.
    std::span<const uint8_t> Rest() const { return bytes_; }

  private:
    uint8_t Next() {
        if (bytes_.empty()) return 0;
        const uint8_t byte = bytes_.front();
        bytes_ = bytes_.subspan(1);
        return byte;
    }

    std::span<const uint8_t> bytes_;
};
