#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <type_traits>

// Little-endian numbers in byte blocks. The caller answers for the bytes being there.

inline uint16_t LoadLE16(const uint8_t* bytes) {
    return static_cast<uint16_t>(bytes[0] | (bytes[1] << 8));
}

inline uint32_t LoadLE32(const uint8_t* bytes) {
    return LoadLE16(bytes) | (static_cast<uint32_t>(LoadLE16(bytes + 2)) << 16);
}

inline void StoreLE16(uint8_t* bytes, uint16_t value) {
    bytes[0] = static_cast<uint8_t>(value);
    bytes[1] = static_cast<uint8_t>(value >> 8);
}

inline void StoreLE32(uint8_t* bytes, uint32_t value) {
    StoreLE16(bytes, static_cast<uint16_t>(value));
    StoreLE16(bytes + 2, static_cast<uint16_t>(value >> 16));
}

// Calls with a constant for the sizes that nearly all records have, for which moving bytes is then
// a single instruction and no call.
template <class Call>
auto WithSize(size_t size, Call call) {
    switch (size) {
        case 1:
            return call(std::integral_constant<size_t, 1>());
        case 2:
            return call(std::integral_constant<size_t, 2>());
        case 4:
            return call(std::integral_constant<size_t, 4>());
        default:
            return call(size);
    }
}

// Four decimal digits as BCD: 1234 gives 0x1234. Values outside 0 to 9999 are held to that.
constexpr uint16_t DecimalToBCD(int32_t value) {
    const int32_t digits = std::clamp(value, 0, 9999);
    return static_cast<uint16_t>(digits / 1000 * 4096 + digits / 100 % 10 * 256 +
                                 digits / 10 % 10 * 16 + digits % 10);
}
