#include "simlink/channel/cOffsetTable.h"

#include <algorithm>

#include "base/Text.h"

void cOffsetTable::RegisterOffset(int32_t offset, int32_t dataType, std::string_view name,
                                  std::optional<int32_t> lenght) {
    if (OffsetRegistered(name)) return;
    auto entry =
        std::unique_ptr<Entry>(new Entry{cOFFSET(fsuipc_, offset, dataType), std::string(name)});
    if (lenght) entry->offset.Lenght = *lenght;
    entries_.push_back(std::move(entry));
    ShapeHasChanged();
}

void cOffsetTable::UnregisterOffset(std::string_view name) {
    const auto removed = std::erase_if(
        entries_, [name](const auto& entry) { return EqualNoCase(entry->name, name); });
    if (removed != 0) ShapeHasChanged();
}

void cOffsetTable::ShapeHasChanged() {
    ++shape_;
    ChangeAll();
}

std::vector<std::unique_ptr<cOffsetTable::Entry>>::const_iterator cOffsetTable::Find(
    std::string_view name) const {
    return std::find_if(entries_.begin(), entries_.end(),
                        [name](const auto& entry) { return EqualNoCase(entry->name, name); });
}

cOFFSET* cOffsetTable::Item(std::string_view name) const {
    const auto found = Find(name);
    return found == entries_.end() ? nullptr : &(*found)->offset;
}

void cOffsetTable::AddPlace(std::string_view name, PlaceSet& places) const {
    const auto found = Find(name);
    if (found != entries_.end()) places.Add(static_cast<size_t>(found - entries_.begin()));
}

void cOffsetTable::QueueReads() {
    size_t place = 0;
    for (const auto& entry : entries_) {
        cOFFSET& offset = entry->offset;
        fsuipc_.FSUIPC_Read(offset.Offset, offset.TransferLenght(), offset.DataPtr(),
                            offset.dwResult, &changes_, place++);
    }
}
