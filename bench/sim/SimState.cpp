#include "bench/sim/SimState.h"

#include <algorithm>
#include <memory>

#include "base/Bytes.h"

namespace bench {

namespace {

constexpr uint32_t kVersion = 0x3304;
constexpr uint32_t kSimulator = 0x3308;
constexpr size_t kReadHeader = 16;
constexpr size_t kMostArrivals = 100000;

bool ServeZeros(std::span<uint8_t> block) {
    const auto blank = std::make_unique<OffsetServer>();
    blank->Set<uint32_t>(kVersion, 0);
    blank->Set<uint32_t>(kSimulator, 0);
    return blank->Serve(block);
}

}  // namespace

uint32_t SimState::Serve(std::span<uint8_t> block) {
    ++batches_;
    if (arrivals_.size() < kMostArrivals) arrivals_.push_back(std::chrono::steady_clock::now());
    if (fault_ == Fault::Zeros) return ServeZeros(block) ? reply_ : 0;
    if (!space_.Serve(block)) return 0;
    if (fault_ == Fault::Garbage) Damage(block);
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

void SimState::BeNormal() {
    fault_ = Fault::None;
    reply_ = 1;
}

// A different damage to the first record with each batch.
void SimState::Damage(std::span<uint8_t> block) const {
    if (block.size() < kReadHeader) return;
    switch (batches_ % 4) {
        case 0:
            StoreLE32(&block[0], 0x7777);
            break;
        case 1:
            StoreLE32(&block[8], 0xFFFFFFF0);
            break;
        case 2:
            StoreLE32(&block[12], 0xDEADBEEF);
            break;
        default:
            std::ranges::fill(block, uint8_t{0xFF});
    }
}

}  // namespace bench
