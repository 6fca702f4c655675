#pragma once

#include <array>
#include <bit>
#include <cstdint>
#include <cstring>
#include <span>
#include <type_traits>

#include "base/Event.h"

// The server's half of the FSUIPC channel: a space of offsets, and the walk over a block of records
// that a client has sent. Knows neither windows nor shared memory.
class OffsetServer {
  public:
    static constexpr uint32_t kSpaceSize = 0x10000;

    // A version that every client takes, and simulator number 8.
    OffsetServer() { SetVersion(0x50000000, 8); }

    // Serves the records in order: fills what a read record asks for, takes over what a write
    // record brings. False at the first record that can't be walked: unknown, beyond the block or
    // the space, or no closing word. What came before it has been served then.
    bool Serve(std::span<uint8_t> block);

    // `version` is given at 0x3304, the check pattern and `simulator` at 0x3308.
    void SetVersion(uint32_t version, uint16_t simulator);

    // What the client wrote last to 0x330A. Reads there give the check pattern all the same.
    uint16_t ClientVersion() const { return clientVersion_; }

    // A little-endian number at an offset. Offsets beyond the space give 0 and take nothing.
    template <class T>
    T Get(uint32_t offset) const {
        static_assert(std::is_arithmetic_v<T> && std::endian::native == std::endian::little);
        T value{};
        if (Inside(offset, sizeof value)) std::memcpy(&value, &space_[offset], sizeof value);
        return value;
    }
    template <class T>
    void Set(uint32_t offset, std::type_identity_t<T> value) {
        static_assert(std::is_arithmetic_v<T> && std::endian::native == std::endian::little);
        if (Inside(offset, sizeof value)) std::memcpy(&space_[offset], &value, sizeof value);
    }

    // A view of the space, empty if any of it would lie beyond.
    std::span<const uint8_t> Bytes(uint32_t offset, uint32_t count) const;
    // Nothing is set if any of it would lie beyond the space.
    void SetBytes(uint32_t offset, std::span<const uint8_t> bytes);

    // A client reads (offset, count), raised before the bytes are taken; writes (offset, bytes),
    // raised before and after the space has changed.
    Event<uint32_t, uint32_t> Reading;
    Event<uint32_t, std::span<const uint8_t>> Writing;
    Event<uint32_t, std::span<const uint8_t>> Written;

  private:
    static bool Inside(uint32_t offset, size_t count) {
        return offset <= kSpaceSize && count <= kSpaceSize - offset;
    }
    void TakeWrite(uint32_t offset, std::span<const uint8_t> bytes);

    std::array<uint8_t, kSpaceSize> space_{};
    uint16_t clientVersion_ = 0;
};
