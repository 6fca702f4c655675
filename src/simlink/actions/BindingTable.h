#pragma once

#include <cstdint>
#include <string>
#include <variant>
#include <vector>

#include "config/IniFiles.h"
#include "simlink/actions/ActionRecord.h"
#include "simlink/actions/Numbered.h"

// The keys of one panel's section in a profile file, each tied to the place in the panel's bindings
// that it fills. One such table drives defaults, loading and saving. The places must outlive it.
class BindingTable {
  public:
    // What a number may be; anything else in a file leaves the default.
    struct Range {
        double low;
        double high;
    };
    static constexpr Range kByte = {0, 255};

    void Add(std::string key, ActionRecord& record, ActionKind standard);
    // In a file 0 is false and any other whole number true.
    void Add(std::string key, bool& option, bool standard);
    void Add(std::string key, int16_t& number, int16_t standard);
    void Add(std::string key, uint8_t& number, uint8_t standard, Range range = kByte);
    void Add(std::string key, float& number, float standard, Range range);
    // A key for each control: the prefix, and its name out of `names`, which are in the order of
    // the controls' numbers.
    template <class Value, int32_t First, int32_t Last, class Standard>
    void AddEach(const std::string& prefix, const char* const (&names)[Last - First + 1],
                 Numbered<Value, First, Last>& values, Standard standard) {
        for (int32_t number = First; number <= Last; ++number) {
            Add(prefix + names[number - First], values[number], standard);
        }
    }
    // Only 1 is written; any other byte is taken as it is.
    void AddFlag(std::string key, uint8_t& flag);

    // Of an action only FSEvent is set; the other fields keep what they have.
    void SetDefaults() const;

    // Takes over what a section says. Key names count with their case; unknown ones are passed
    // over.
    void Take(const IniEntries& entries) const;

    // Writes what differs from the defaults and deletes what doesn't. False when a write fails.
    [[nodiscard]] bool Write(IniSection& keys) const;

  private:
    struct Row {
        std::string key;
        std::variant<ActionRecord*, bool*, uint8_t*, int16_t*, float*> place;
        double standard;
        Range range;
        bool flag = false;
    };

    // Empty for a value that needs no key.
    static std::string Text(const Row& row);

    std::vector<Row> rows_;
};
