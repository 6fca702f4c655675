#include "platform/virtual/OffsetServer.h"

#include <algorithm>

#include "base/Bytes.h"

namespace {

constexpr uint32_t kRead = 1;
constexpr uint32_t kWrite = 2;
constexpr size_t kReadHeader = 16;
constexpr size_t kWriteHeader = 12;
constexpr uint32_t kVersionOffset = 0x3304;
constexpr uint32_t kSimulatorOffset = 0x3308;
constexpr uint32_t kClientVersionOffset = 0x330A;
constexpr uint32_t kCheckPattern = 0xFADE0000;

}  // namespace

bool OffsetServer::Serve(std::span<uint8_t> block) {
    while (block.size() >= 4) {
        const uint32_t identifier = LoadLE32(block.data());
        if (identifier == 0) return true;
        if (identifier != kRead && identifier != kWrite) return false;
        const size_t header = identifier == kRead ? kReadHeader : kWriteHeader;
        if (block.size() < header) return false;
        const uint32_t offset = LoadLE32(&block[4]);
        const uint32_t count = LoadLE32(&block[8]);
        if (count > block.size() - header || !Inside(offset, count)) return false;
        const auto data = block.subspan(header, count);
        if (identifier == kRead) {
            Reading.Raise(offset, count);
            std::ranges::copy(Bytes(offset, count), data.begin());
        } else {
            TakeWrite(offset, data);
        }
        block = block.subspan(header + count);
    }
    return false;
}

void OffsetServer::SetVersion(uint32_t version, uint16_t simulator) {
    Set<uint32_t>(kVersionOffset, version);
    Set<uint32_t>(kSimulatorOffset, kCheckPattern | simulator);
}

std::span<const uint8_t> OffsetServer::Bytes(uint32_t offset, uint32_t count) const {
    if (!Inside(offset, count)) return {};
    return std::span(space_).subspan(offset, count);
}

void OffsetServer::SetBytes(uint32_t offset, std::span<const uint8_t> bytes) {
    if (Inside(offset, bytes.size())) std::ranges::copy(bytes, space_.begin() + offset);
}

void OffsetServer::TakeWrite(uint32_t offset, std::span<const uint8_t> bytes) {
    Writing.Raise(offset, bytes);
    const auto simulator = Get<uint32_t>(kSimulatorOffset);
    SetBytes(offset, bytes);
    const bool coversVersion = offset <= kClientVersionOffset &&
                               offset + bytes.size() >= kClientVersionOffset + sizeof(uint16_t);
    if (coversVersion) clientVersion_ = Get<uint16_t>(kClientVersionOffset);
    Set<uint32_t>(kSimulatorOffset, simulator);
    Written.Raise(offset, bytes);
}
