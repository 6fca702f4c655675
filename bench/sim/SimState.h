#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "bench/sim/AircraftModel.h"
#include "platform/virtual/OffsetServer.h"

namespace bench {

// What the simulator stand-in serves, and how: well or with one of its faults.
class SimState {
  public:
    enum class Fault : uint8_t { None, Silent, Zeros, Garbage };

    SimState() : aircraft_(space_) {}

    // Serves a batch as the present fault has it and gives the reply value. Silence is the caller's
    // business.
    uint32_t Serve(std::span<uint8_t> block);

    OffsetServer& Space() { return space_; }
    AircraftModel& Aircraft() { return aircraft_; }

    // No fault, reply 1.
    void BeNormal();
    void SetFault(Fault fault) { fault_ = fault; }
    void SetReply(uint32_t reply) { reply_ = reply; }
    Fault GetFault() const { return fault_; }
    uint64_t Batches() const { return batches_; }

    // Milliseconds between one batch and the next.
    struct Pace {
        double median;
        double percentile99;
    };
    // Of the batches that came since the last call of this kind; none before there are `intervals`.
    std::optional<Pace> TakePace(size_t intervals);

  private:
    void Damage(std::span<uint8_t> block) const;

    OffsetServer space_;
    AircraftModel aircraft_;
    Fault fault_ = Fault::None;
    uint32_t reply_ = 1;
    uint64_t batches_ = 0;
    std::vector<std::chrono::steady_clock::time_point> arrivals_;
};

}  // namespace bench
