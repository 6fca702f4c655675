#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "bench/virtual/VirtualCockpit.h"

// Sees that the program asks the simulator for nothing but what the present mode and bindings need,
// and what events ask for.
class OffsetsWatch {
  public:
    // Of a program that has been started.
    explicit OffsetsWatch(VirtualCockpit& cockpit);

    // An offset that was read since the last call, and is none of these. Empty when there is none.
    std::string Stranger();

  private:
    using Reads = std::vector<uint32_t>;  // offset and size in one number

    Reads Wanted() const;

    VirtualCockpit& cockpit_;
    ScopedConnection reading_;
    Reads read_;
    Reads wantedBefore_;  // the mode may change within a tick
};
