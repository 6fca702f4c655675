#include "bench/sim/Lies.h"

#include <algorithm>
#include <chrono>
#include <utility>

#include "base/Bytes.h"

namespace bench {

namespace {

constexpr uint32_t kRead = 1;
constexpr uint32_t kWrite = 2;
constexpr size_t kReadHeader = 16;
constexpr size_t kWriteHeader = 12;
constexpr size_t kCount = 8;
constexpr size_t kToken = 12;
constexpr std::chrono::milliseconds kScribbling{2};

// Where the records of a block that was served begin; those that read only, if it is asked.
std::vector<size_t> Records(std::span<const uint8_t> block, bool readsOnly) {
    std::vector<size_t> starts;
    size_t at = 0;
    while (at + kReadHeader <= block.size()) {
        const uint32_t identifier = LoadLE32(&block[at]);
        if (identifier != kRead && identifier != kWrite) break;
        if (identifier == kRead || !readsOnly) starts.push_back(at);
        at += (identifier == kRead ? kReadHeader : kWriteHeader) + LoadLE32(&block[at + kCount]);
    }
    return starts;
}

}  // namespace

void DamageFirstRecord(std::span<uint8_t> block, uint64_t turn) {
    if (block.size() < kReadHeader) return;
    switch (turn % 4) {
        case 0:
            StoreLE32(&block[0], 0x7777);
            break;
        case 1:
            StoreLE32(&block[kCount], 0xFFFFFFF0);
            break;
        case 2:
            StoreLE32(&block[kToken], 0xDEADBEEF);
            break;
        default:
            std::ranges::fill(block, uint8_t{0xFF});
    }
}

void LieAboutCount(std::span<uint8_t> block, uint64_t turn) {
    const auto starts = Records(block, false);
    if (starts.empty()) return;
    uint8_t* count = &block[starts[turn / 4 % starts.size()] + kCount];
    const uint32_t lies[] = {0xFFFFFFFF, 0x7FFFFFFF, 32512, LoadLE32(count) + 1};
    StoreLE32(count, lies[turn % 4]);
}

void LieAboutToken(std::span<uint8_t> block, uint64_t turn) {
    const auto starts = Records(block, true);
    if (starts.empty()) return;
    uint8_t* token = &block[starts[turn / 4 % starts.size()] + kToken];
    const uint32_t lies[] = {0, 0xFFFFFFFF, 0xDEADBEEF, LoadLE32(token) + 1};
    StoreLE32(token, lies[turn % 4]);
}

Scribbler::Scribbler(std::span<uint8_t> block, std::function<void()> done)
    : done_(std::move(done)) {
    const auto add = [&](size_t at, uint32_t wrong) {
        words_.push_back({&block[at], LoadLE32(&block[at]), wrong});
    };
    for (const size_t start : Records(block, false)) {
        add(start, 0x7777);
        add(start + kCount, 0x7FFFFFFF);
        if (LoadLE32(&block[start]) == kRead) add(start + kToken, 0xDEADBEEF);
    }
    thread_ = std::thread([this] { Run(); });
    while (!begun_) std::this_thread::yield();
}

Scribbler::~Scribbler() { thread_.join(); }

void Scribbler::Run() {
    const auto end = std::chrono::steady_clock::now() + kScribbling;
    begun_ = true;
    do {
        for (const Word& word : words_) {
            StoreLE32(word.place, word.wrong);
            std::atomic_signal_fence(std::memory_order_seq_cst);
            StoreLE32(word.place, word.right);
            std::atomic_signal_fence(std::memory_order_seq_cst);
        }
    } while (std::chrono::steady_clock::now() < end);
    done_();
}

}  // namespace bench
