#pragma once

#include <cstdint>
#include <deque>
#include <map>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/virtual/OffsetServer.h"

namespace bench {

// A small aircraft behind the offsets: what is written stays, the gear travels, radios swap, power
// follows its switches, and what the client wrote is kept in a log.
class AircraftModel {
  public:
    struct Write {
        uint32_t offset;
        std::vector<uint8_t> bytes;
    };
    struct Control {
        int32_t number;
        int32_t parameter;
    };

    // The aircraft stands in `space` with its electrics on; `space` outlives the model.
    explicit AircraftModel(OffsetServer& space);

    // The title the simulator gives, cut to 255 characters.
    void SetTitle(std::string_view title);

    // Moves the gear to where it is at this moment, in milliseconds that may wrap.
    void MoveTo(uint32_t milliseconds);

    // The next of two states in which all that panels show without a profile differs, and most of
    // their tiles; altitude, speed and frequencies are others each time.
    void Vary();

    // How often clients have written to just this offset.
    uint64_t WritesTo(uint32_t offset) const;
    // What came since the last call, the latest 10,000.
    std::vector<Write> TakeWrites();
    std::vector<Control> TakeControls();

  private:
    void TakeWrite(uint32_t offset, std::span<const uint8_t> bytes);
    void SwapRadios();

    OffsetServer& space_;
    ScopedConnection written_;
    uint32_t lastMove_ = 0;
    double gear_ = 0;
    uint32_t variation_ = 0;
    std::map<uint32_t, uint64_t> writesTo_;
    std::deque<Write> writes_;
    std::deque<Control> controls_;
};

}  // namespace bench
