#pragma once

#include <array>
#include <chrono>
#include <cstdint>
#include <deque>
#include <mutex>
#include <span>
#include <string>
#include <vector>

#include "bench/panels/PanelKinds.h"

namespace bench {

// One panel: where its controls stand, and the feature reports that it was sent. The console and
// the pipes' threads share it.
class VirtualPanel {
  public:
    using Report = std::array<uint8_t, 4>;

    VirtualPanel(const PanelKind& kind, int number);

    const PanelKind& Kind() const { return kind_; }
    int Number() const { return number_; }
    // Such as "multi1".
    std::string Name() const;

    // Puts `bits` in the place of those under `mask` and gives the input report that follows.
    Report Change(uint32_t bits, uint32_t mask);

    // The positions, in the form that reading a feature report gives.
    std::vector<uint8_t> Positions() const;

    void TakeFeature(std::span<const uint8_t> report);
    struct Feature {
        std::chrono::steady_clock::time_point time;
        std::string report;
    };
    // All since the last call, the latest 10,000.
    std::vector<Feature> TakeFeatures();
    // What a person sees; "untouched" before the first feature report that shows anything.
    std::string Show() const;

  private:
    const PanelKind& kind_;
    const int number_;
    mutable std::mutex lock_;
    uint32_t state_;
    std::deque<Feature> features_;
    std::string shown_;  // the latest of them that can be seen
};

}  // namespace bench
