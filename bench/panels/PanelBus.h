#pragma once

#include <chrono>
#include <cstdint>
#include <memory>

#include "bench/panels/VirtualPanel.h"

namespace bench {

// Where the virtual panels are plugged in.
class PanelBus {
  public:
    virtual ~PanelBus() = default;

    virtual bool PlugIn(std::shared_ptr<VirtualPanel> panel) = 0;
    // Whoever had it open loses it.
    virtual void Unplug(const VirtualPanel& panel) = 0;

    // Gives an input report to all readers of the panel; gives how many had no room for it. For any
    // thread.
    virtual int Send(const VirtualPanel& panel, const VirtualPanel::Report& report) = 0;
    // How many read the panel's input now.
    virtual int Readers(const VirtualPanel& panel) = 0;

    // How long the panel takes for each feature report from now on.
    virtual void SetAnswerTime(const VirtualPanel& panel, std::chrono::milliseconds time) = 0;
    static constexpr std::chrono::milliseconds kNever = std::chrono::hours(10'000);

    virtual void Pause(uint32_t milliseconds) = 0;
};

}  // namespace bench
