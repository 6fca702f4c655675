#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

#include "simlink/channel/OffsetRows.h"

// The DME position of one Radio Panel. Choices are 1 the distances of both stations, 2 distance and
// speed or time of DME1, 3 of DME2; for others the texts stay as they are.
class RadioDme {
  public:
    // `offsets` has the rows of kRadioOffsets.
    explicit RadioDme(const OffsetRows& offsets) : offsets_(offsets) {}

    void Show(uint8_t choice, std::string& active, std::string& standby) const;
    void ToggleTime() { showTime_ = !showTime_; }

  private:
    void ShowStation(size_t station, std::string& active, std::string& standby) const;

    const OffsetRows& offsets_;
    bool showTime_ = false;  // else the speed
};
