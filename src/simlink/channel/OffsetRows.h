#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "simlink/channel/AircraftMode.h"
#include "simlink/channel/cOffsetTable.h"

inline constexpr uint8_t kAllModes = 255;

// What a logic has read at every tick: a value's name, where it is and of which type of cOFFSET's,
// and the mode in which it is read. A name may have a row for each mode.
struct OffsetRow {
    const char* name;
    int32_t offset;
    int32_t dataType;
    uint8_t mode = kAllModes;
};

// A logic's table of such rows: the one way to register them, and to read what the tick has read.
class OffsetRows {
  public:
    // `rows` must outlive the object.
    OffsetRows(cOffsetTable& table, std::span<const OffsetRow> rows) : table_(table), rows_(rows) {
        for (const OffsetRow& row : rows) values_.emplace_back(table, row.name);
    }

    // Has the rows of a mode read from the next tick on, and those of other modes no more.
    void RegisterMode(uint8_t mode) {
        for (const OffsetRow& row : rows_) {
            if (row.mode != kAllModes) table_.UnregisterOffset(row.name);
        }
        for (const OffsetRow& row : rows_) {
            if (row.mode == kAllModes || row.mode == mode) Register(row);
        }
    }
    // Has a single row read as well, beside those that are read already.
    void Register(size_t row) { Register(rows_[row]); }

    // Adds the places of those that are registered.
    void AddPlaces(PlaceSet& places) const {
        for (const OffsetRow& row : rows_) table_.AddPlace(row.name, places);
    }

    // By the row's name, whichever of the name's rows is registered.
    const NamedOffset& operator[](size_t row) const { return values_[row]; }

  private:
    void Register(const OffsetRow& row) {
        table_.RegisterOffset(row.offset, row.dataType, row.name);
    }

    cOffsetTable& table_;
    std::span<const OffsetRow> rows_;
    std::vector<NamedOffset> values_;
};
