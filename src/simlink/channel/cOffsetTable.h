#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/Number.h"
#include "simlink/channel/PlaceSet.h"
#include "simlink/channel/cOFFSET.h"

// The offsets that every tick reads, by name, shared by all panels. Names compare without regard to
// case; the order is that of registering. Entries stay until they are unregistered.
class cOffsetTable {
  public:
    explicit cOffsetTable(modFSUIPC& fsuipc) : fsuipc_(fsuipc) {}

    // A name that is there already stays as it is, whatever is asked for now.
    void RegisterOffset(int32_t offset, int32_t dataType, std::string_view name,
                        std::optional<int32_t> lenght = std::nullopt);
    void UnregisterOffset(std::string_view name);
    bool OffsetRegistered(std::string_view name) const { return Item(name) != nullptr; }

    // nullptr if the name isn't there. Valid until an entry is unregistered.
    cOFFSET* Item(std::string_view name) const;

    bool Empty() const { return entries_.empty(); }

    // Queues a read of every entry. Those that don't fit into the batch keep their old value.
    void QueueReads();

    // Changes whenever an entry is added or removed.
    uint32_t Shape() const { return shape_; }

    // The places of the entries whose value isn't what it was when the changes were forgotten last;
    // all of them after a change of shape.
    const PlaceSet& Changes() const { return changes_; }
    void ForgetChanges() { changes_.Clear(); }
    // Adds the place of an entry, if it is there.
    void AddPlace(std::string_view name, PlaceSet& places) const;
    // As if every value had changed.
    void ChangeAll() { changes_.Fill(); }

  private:
    // All that a tick touches of an entry lies in one line of the processor's cache.
    struct alignas(64) Entry {
        cOFFSET offset;
        std::string name;
    };

    std::vector<std::unique_ptr<Entry>>::const_iterator Find(std::string_view name) const;
    void ShapeHasChanged();

    modFSUIPC& fsuipc_;
    std::vector<std::unique_ptr<Entry>> entries_;
    uint32_t shape_ = 1;
    PlaceSet changes_;
};

// An entry of the table by its name, looked up again only when the table's shape has changed.
class NamedOffset {
  public:
    // `name` must outlive the object.
    NamedOffset(const cOffsetTable& table, const char* name) : table_(table), name_(name) {}

    // The entry's value, 0 while there is no such entry.
    double Data() const {
        const cOFFSET* offset = Find();
        return offset ? offset->Data() : 0.0;
    }
    int32_t IntegerData() const { return RoundTo<int32_t>(Data()); }
    std::string_view Text() const {
        const cOFFSET* offset = Find();
        return offset ? offset->Text() : std::string_view{};
    }
    // As cOFFSET's; without an entry 0, and the frequency of four zeros.
    int32_t GetBCD() const {
        const cOFFSET* offset = Find();
        return offset ? offset->GetBCD() : 0;
    }
    float GetFreq() const {
        const cOFFSET* offset = Find();
        return offset ? offset->GetFreq() : 100.0F;
    }

  private:
    const cOFFSET* Find() const {
        if (shape_ != table_.Shape()) {
            offset_ = table_.Item(name_);
            shape_ = table_.Shape();
        }
        return offset_;
    }

    const cOffsetTable& table_;
    const char* name_;
    mutable const cOFFSET* offset_ = nullptr;
    mutable uint32_t shape_ = 0;
};
