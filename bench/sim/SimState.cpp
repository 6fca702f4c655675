#include "bench/sim/SimState.h"

#include <algorithm>
#include <memory>
#include <utility>

#include "bench/sim/Lies.h"

namespace bench {

namespace {

constexpr uint32_t kVersion = 0x3304;
constexpr uint32_t kSimulator = 0x3308;
constexpr size_t kMostArrivals = 100000;
constexpr size_t kReadsOfTick = 10;

bool ServeZeros(std::span<uint8_t> block) {
    const auto blank = std::make_unique<OffsetServer>();
    blank->Set<uint32_t>(kVersion, 0);
    blank->Set<uint32_t>(kSimulator, 0);
    return blank->Serve(block);
}

}  // namespace

SimState::SimState()
    : aircraft_(space_), reading_(space_.Reading.Connect([this](uint32_t offset, uint32_t size) {
          reads_.push_back({offset, size});
      })) {}

uint32_t SimState::Serve(std::span<uint8_t> block) {
    ++batches_;
    const auto now = std::chrono::steady_clock::now();
    if (arrivals_.size() < kMostArrivals) arrivals_.push_back(now);
    if (every_ != 0 && ticks_ >= nextVariation_) Vary(now);
    if (fault_ == Fault::Zeros) return ServeZeros(block) ? reply_ : 0;
    reads_.clear();
    if (!space_.Serve(block)) return 0;
    if (reads_.size() >= kReadsOfTick) NoteTick(now);
    Lie(block);
    return reply_;
}

std::optional<SimState::Pace> SimState::TakePace(size_t intervals) {
    if (arrivals_.size() <= intervals || intervals == 0) return std::nullopt;
    std::vector<double> times;
    for (size_t i = 0; i < intervals; ++i) {
        const std::chrono::duration<double, std::milli> time = arrivals_[i + 1] - arrivals_[i];
        times.push_back(time.count());
    }
    arrivals_.clear();
    std::ranges::sort(times);
    return Pace{times[intervals / 2], times[intervals * 99 / 100]};
}

std::vector<SimState::Time> SimState::TakeTicks() { return std::exchange(tickTimes_, {}); }

void SimState::NoteTick(Time time) {
    ++ticks_;
    if (tickTimes_.size() < kMostArrivals) tickTimes_.push_back(time);
}

// An event's batch may bring it, too: what the client gets then it gets no later.
void SimState::Vary(Time time) {
    nextVariation_ = ticks_ + every_;
    aircraft_.Vary();
    ++variations_;
    lastVariation_ = time;
}

void SimState::BeNormal() {
    fault_ = Fault::None;
    reply_ = 1;
}

void SimState::Lie(std::span<uint8_t> block) const {
    if (fault_ == Fault::Garbage) DamageFirstRecord(block, batches_);
    if (fault_ == Fault::Counts) LieAboutCount(block, batches_);
    if (fault_ == Fault::Tokens) LieAboutToken(block, batches_);
}

}  // namespace bench
