#include "simlink/channel/cOffsetTable.h"

#include <algorithm>

#include "base/Text.h"

void cOffsetTable::RegisterOffset(int32_t offset, int32_t dataType, std::string_view name,
                                  std::optional<int32_t> lenght) {
    if (OffsetRegistered(name)) return;
    auto entry =
        std::unique_ptr<Entry>(new Entry{std::string(name), cOFFSET(fsuipc_, offset, dataType)});
    if (lenght) entry->offset.Lenght = *lenght;
    entries_.push_back(std::move(entry));
    ++shape_;
}

void cOffsetTable::UnregisterOffset(std::string_view name) {
    const auto removed = std::erase_if(
        entries_, [name](const auto& entry) { return EqualNoCase(entry->name, name); });
    if (removed != 0) ++shape_;
}

cOFFSET* cOffsetTable::Item(std::string_view name) const {
    const auto found = std::find_if(entries_.begin(), entries_.end(), [name](const auto& entry) {
        return EqualNoCase(entry->name, name);
    });
    return found == entries_.end() ? nullptr : &(*found)->offset;
}

void cOffsetTable::QueueReads() {
    for (const auto& entry : entries_) {
        cOFFSET& offset = entry->offset;
        fsuipc_.FSUIPC_Read(offset.Offset, offset.TransferLenght(), offset.DataPtr(),
                            offset.dwResult);
    }
}
