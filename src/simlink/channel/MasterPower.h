#pragma once

#include "simlink/channel/OffsetRows.h"

// The aircraft's battery and avionics switches: while either is off a panel is dark.
class MasterPower {
  public:
    explicit MasterPower(cOffsetTable& table) : rows_(table, kRows) {}

    // Has both read at every tick.
    void Register() { rows_.RegisterMode(kAllModes); }
    // As the last tick has read them.
    bool IsOn() const { return rows_[0].Data() != 0 && rows_[1].Data() != 0; }
    // As OffsetRows'.
    void AddPlaces(PlaceSet& places) const { rows_.AddPlaces(places); }

  private:
    static constexpr OffsetRow kRows[] = {{"MASTERBATTERY", 0x281C, 4},
                                          {"MASTERAVIONICS", 0x2E80, 4}};

    OffsetRows rows_;
};
