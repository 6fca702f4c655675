#pragma once

#include "simlink/channel/cOffsetTable.h"

// The aircraft's battery and avionics switches: while either is off a panel is dark.
class MasterPower {
  public:
    explicit MasterPower(cOffsetTable& table)
        : table_(table), battery_(table, kBattery), avionics_(table, kAvionics) {}

    // Has both read at every tick.
    void Register() {
        table_.RegisterOffset(0x281C, 4, kBattery);
        table_.RegisterOffset(0x2E80, 4, kAvionics);
    }
    // As the last tick has read them.
    bool IsOn() const { return battery_.Data() != 0 && avionics_.Data() != 0; }

  private:
    static constexpr const char* kBattery = "MASTERBATTERY";
    static constexpr const char* kAvionics = "MASTERAVIONICS";

    cOffsetTable& table_;
    NamedOffset battery_;
    NamedOffset avionics_;
};
