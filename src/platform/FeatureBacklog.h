#pragma once

#include <array>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

// A feature report with room for the longest of a panel.
struct FeatureBytes {
    static constexpr size_t kLongest = 64;

    std::array<uint8_t, kLongest> bytes{};
    size_t size = 0;

    std::span<uint8_t> Span() { return std::span(bytes).first(size); }
};

// Feature reports that wait for one panel's bus. All of them go out in their order while the panel
// keeps up. What a panel shows is a state: so once it falls behind, only the latest report under
// each report id waits, and the panel shows what is true as soon as it can.
class FeatureBacklog {
  public:
    using SteadyClock = std::chrono::steady_clock;

    // False for a report that is empty or longer than any of a panel.
    bool Add(std::span<const uint8_t> report, SteadyClock::time_point now);

    bool Empty() const { return waiting_.empty(); }
    // The next one to send. `lastTook` is how long the panel took for the one before. Not when
    // empty.
    FeatureBytes Take(SteadyClock::duration lastTook);
    void Clear() { waiting_.clear(); }

  private:
    struct Waiting {
        FeatureBytes report;
        SteadyClock::time_point since;
    };

    void KeepLatest();

    std::vector<Waiting> waiting_;
};
