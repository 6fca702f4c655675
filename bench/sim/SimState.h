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
    enum class Fault : uint8_t { None, Silent, Zeros, Garbage, Counts, Tokens, Scribble };

    SimState();

    // Serves a batch as the present fault has it and gives the reply value. Silence and scribbling
    // are the caller's business.
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

    // Offset and size of what the latest batch has read, in order.
    struct Read {
        uint32_t offset;
        uint32_t size;
    };
    const std::vector<Read>& Reads() const { return reads_; }

    // When each tick came since the last call. A batch of ten reads or more counts as one, a
    // smaller one belongs to an event.
    using Time = std::chrono::steady_clock::time_point;
    std::vector<Time> TakeTicks();

    // Varies the aircraft before every so manyth tick is served, 0 for never.
    void VaryEvery(uint32_t every) { every_ = every; }
    // How often that was, and when the batch came that brought the latest.
    uint64_t Variations() const { return variations_; }
    Time LastVariation() const { return lastVariation_; }

  private:
    void Lie(std::span<uint8_t> block) const;
    void NoteTick(Time time);
    void Vary(Time time);

    OffsetServer space_;
    AircraftModel aircraft_;
    Fault fault_ = Fault::None;
    uint32_t reply_ = 1;
    uint64_t batches_ = 0;
    std::vector<Time> arrivals_;
    ScopedConnection reading_;
    std::vector<Read> reads_;
    uint64_t ticks_ = 0;
    std::vector<Time> tickTimes_;
    uint32_t every_ = 0;
    uint64_t nextVariation_ = 0;
    uint64_t variations_ = 0;
    Time lastVariation_;
};

}  // namespace bench
