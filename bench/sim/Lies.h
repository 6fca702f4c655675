#pragma once

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <span>
#include <thread>
#include <vector>

namespace bench {

// Ways in which a simulator's reply can be wrong. `turn` is another number each time.

// One of four damages to the first record.
void DamageFirstRecord(std::span<uint8_t> block, uint64_t turn);
// A count beyond all bounds in one of the records, or one that is off by one.
void LieAboutCount(std::span<uint8_t> block, uint64_t turn);
// Another word for the client's address in one of the records.
void LieAboutToken(std::span<uint8_t> block, uint64_t turn);

// Writes to a block while the client reads it: for two milliseconds the heads of all records change
// between right and wrong, and are right at the end. What the records bring is left alone.
class Scribbler {
  public:
    // Returns when the scribbling has begun; calls `done` when it has ended.
    Scribbler(std::span<uint8_t> block, std::function<void()> done);
    Scribbler(const Scribbler&) = delete;
    Scribbler& operator=(const Scribbler&) = delete;
    ~Scribbler();

  private:
    void Run();

    struct Word {
        uint8_t* place;
        uint32_t right;
        uint32_t wrong;
    };
    std::vector<Word> words_;
    const std::function<void()> done_;
    std::atomic<bool> begun_ = false;
    std::thread thread_;
};

}  // namespace bench
