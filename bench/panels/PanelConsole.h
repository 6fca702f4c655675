#pragma once

#include <map>
#include <memory>
#include <string>

#include "bench/console/Command.h"
#include "bench/panels/PanelBus.h"
#include "bench/panels/PanelFlood.h"

namespace bench {

// The console commands of the virtual panels.
class PanelConsole {
  public:
    explicit PanelConsole(PanelBus& bus) : bus_(bus) {}

    // One line, beginning with "error:" when the command can't be carried out.
    std::string Answer(const Command& command);

  private:
    std::string Add(const Command& command);
    std::string List();
    std::string Reports(VirtualPanel& panel, bool withTimes);
    std::string Slow(VirtualPanel& panel, const Command& command);
    std::string Flood(const std::shared_ptr<VirtualPanel>& panel, const Command& command);
    std::string Flooding();
    std::string Flooded(const std::string& name);
    std::string Raw(VirtualPanel& panel, const Command& command);
    std::string Move(VirtualPanel& panel, const Command& command);
    std::string Turn(VirtualPanel& panel, const Command& command);
    void Send(VirtualPanel& panel, uint32_t bits, uint32_t mask);

    PanelBus& bus_;
    std::map<std::string, std::shared_ptr<VirtualPanel>, std::less<>> panels_;
    // By panel; the latest of each.
    std::map<std::string, PanelFlood, std::less<>> floods_;
};

}  // namespace bench
