#pragma once

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

    // Gives an input report to all readers of the panel.
    virtual void Send(const VirtualPanel& panel, const VirtualPanel::Report& report) = 0;
    // How many read the panel's input now.
    virtual int Readers(const VirtualPanel& panel) = 0;

    virtual void Pause(uint32_t milliseconds) = 0;
};

}  // namespace bench
