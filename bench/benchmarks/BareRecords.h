#pragma once

#include <cstdint>
#include <cstring>
#include <vector>

#include "base/Bytes.h"

// The least that an exchange costs its client: each record coded into the block, and decoded from
// it into a place of its own.
class BareRecords {
  public:
    void AddRead(uint32_t offset, uint32_t count) { Add(1, kReadHeader, offset, count); }
    void AddWrite(uint32_t offset, uint32_t count) { Add(2, kWriteHeader, offset, count); }

    void Code() {
        uint8_t* at = block_.data();
        uint32_t token = 0;
        for (const Record& record : records_) {
            StoreLE32(at, record.kind);
            StoreLE32(at + 4, record.offset);
            StoreLE32(at + 8, record.count);
            ++token;
            if (record.kind == 1) {
                StoreLE32(at + 12, token);
                WithSize(record.count,
                         [&](auto size) { std::memset(at + record.header, 0, size); });
            } else {
                std::memcpy(at + record.header, values_.data() + record.place, record.count);
            }
            at += record.header + record.count;
        }
        StoreLE32(at, 0);
    }

    // False at a record that isn't the one that was sent.
    bool Decode() {
        const uint8_t* at = block_.data();
        for (const Record& record : records_) {
            if (LoadLE16(at) != record.kind || LoadLE32(at + 8) != record.count) return false;
            if (record.kind == 1) {
                WithSize(record.count, [&](auto size) {
                    std::memcpy(values_.data() + record.place, at + record.header, size);
                });
            }
            at += record.header + record.count;
        }
        return LoadLE16(at) == 0;
    }

    size_t Count() const { return records_.size(); }
    const uint8_t* Values() const { return values_.data(); }

  private:
    static constexpr uint32_t kReadHeader = 16;
    static constexpr uint32_t kWriteHeader = 12;

    struct Record {
        uint32_t kind;
        uint32_t header;
        uint32_t offset;
        uint32_t count;
        size_t place;
    };

    void Add(uint32_t kind, uint32_t header, uint32_t offset, uint32_t count) {
        records_.push_back({kind, header, offset, count, values_.size()});
        values_.resize(values_.size() + count);
        block_.resize(block_.size() + header + count);
    }

    std::vector<Record> records_;
    std::vector<uint8_t> values_;
    std::vector<uint8_t> block_ = std::vector<uint8_t>(4);
};
