#pragma once

#include <atomic>
#include <cstdint>
#include <thread>

#include "bench/panels/PanelBus.h"

namespace bench {

// Sends a panel's input reports at a steady rate from a thread of its own: a control's bits and
// their absence in turn, or bytes at random. When it is over the panel's real state is sent.
class PanelFlood {
  public:
    struct Settings {
        uint32_t perSecond;
        uint32_t seconds;
        const PanelControl* control;  // null for bytes at random
    };
    struct Count {
        uint64_t sent = 0;     // reports, the last one left out
        uint64_t refused = 0;  // of them, times a reader had no room
    };

    PanelFlood(PanelBus& bus, std::shared_ptr<VirtualPanel> panel, const Settings& settings);
    PanelFlood(const PanelFlood&) = delete;
    PanelFlood& operator=(const PanelFlood&) = delete;
    // Breaks it off.
    ~PanelFlood();

    bool IsRunning() const { return running_; }
    Count Counted() const { return {sent_, refused_}; }

  private:
    void Run(const Settings& settings);
    VirtualPanel::Report Next(const PanelControl* control);

    PanelBus& bus_;
    std::shared_ptr<VirtualPanel> panel_;
    uint32_t random_ = 1;
    std::atomic<uint64_t> sent_ = 0;
    std::atomic<uint64_t> refused_ = 0;
    std::atomic<bool> running_ = true;
    std::atomic<bool> stop_ = false;
    std::thread thread_;
};

}  // namespace bench
