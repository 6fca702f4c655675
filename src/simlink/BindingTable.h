#pragma once

#include <cstdint>
#include <string>
#include <variant>
#include <vector>

#include "config/ProfileStore.h"
#include "simlink/ActionRecord.h"

// The keys of one panel's section in a profile file, each tied to the place in the panel's bindings
// that it fills. One such table drives defaults, loading and saving. The places must outlive it.
class BindingTable {
  public:
    // What a number may be; anything else in a file leaves the default.
    struct Range {
        int32_t low;
        int32_t high;
    };

    void Add(std::string key, ActionRecord& record, ActionKind standard);
    void Add(std::string key, int16_t& number, int16_t standard);
    void Add(std::string key, uint8_t& number, uint8_t standard, Range range);
    // Only 1 is written; any other byte is taken as it is.
    void AddFlag(std::string key, uint8_t& flag);

    // Of the records only FSEvent.
    void SetDefaults() const;

    // Defaults, then what the section of the current profile says; a file that can't be read says
    // nothing. Key names count with their case; unknown ones are passed over.
    void Load(const ProfileStore& profiles, const std::string& section) const;

    // Writes what differs from the defaults and deletes what doesn't, all or nothing.
    void Save(ProfileStore& profiles, const std::string& section) const;

  private:
    struct Row {
        std::string key;
        std::variant<ActionRecord*, uint8_t*, int16_t*> place;
        int32_t standard;
        Range range;
        bool flag = false;
    };

    static void Read(const Row& row, const std::string& text);
    // Empty for a value that needs no key.
    static std::string Text(const Row& row);

    std::vector<Row> rows_;
};
