#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

#include "simlink/channel/OffsetRows.h"
#include "simlink/channel/cSession.h"

// The ADF position of one Radio Panel. Modes are the bindings' ADFMode; sides are 1 the upper row
// and 2 the lower one. The frequencies are the session's, for all panels together: active ones are
// the simulator's, standby ones the program's own until a click swaps them.
class RadioAdf {
  public:
    // `offsets` has the rows of kRadioOffsets.
    RadioAdf(cSession& session, const OffsetRows& offsets) : session_(session), offsets_(offsets) {}

    // A tick has read the frequencies.
    void Read();
    void Show(uint8_t mode, uint8_t side, std::string& active, std::string& standby);

    // Both only once a tick has read. `stepKHz` for each of `steps`, which are negative for down.
    void Click(uint8_t mode, uint8_t side);
    void Turn(uint8_t mode, uint8_t side, float stepKHz, int32_t steps);

  private:
    void PrepareStandby();
    size_t AdfOf(uint8_t mode, uint8_t side) const;
    void Write(size_t adf);

    cSession& session_;
    const OffsetRows& offsets_;
    uint8_t tuned_ = 1;  // 1 or 2, the one that the knob changes where both are shown
};
