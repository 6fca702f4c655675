#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

// A set of places in the offset table, kept in place. Asking whether two sets meet costs next to
// nothing. Places beyond the last bit share it: two sets may then seem to meet, and never seem not
// to.
class PlaceSet {
  public:
    void Clear() { words_ = {}; }
    void Fill() { words_.fill(~uint64_t{0}); }
    void Add(size_t place) {
        const size_t bit = std::min(place, kPlaces - 1);
        words_[bit / kBits] |= uint64_t{1} << bit % kBits;
    }

    bool Meets(const PlaceSet& other) const {
        uint64_t common = 0;
        for (size_t i = 0; i < words_.size(); ++i) common |= words_[i] & other.words_[i];
        return common != 0;
    }

  private:
    static constexpr size_t kBits = 64;
    static constexpr size_t kPlaces = 256;

    std::array<uint64_t, kPlaces / kBits> words_{};
};
