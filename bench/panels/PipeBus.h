#pragma once

#include <memory>
#include <string>
#include <vector>

#include "bench/panels/PanelBus.h"
#include "bench/panels/PipeDevice.h"

namespace bench {

// Panels as pipes, listed in the file panels.txt that the bench setupapi.dll reads: one path a
// line.
class PipeBus : public PanelBus {
  public:
    // `folder` is that of the list.
    explicit PipeBus(const std::string& folder);
    PipeBus(const PipeBus&) = delete;
    PipeBus& operator=(const PipeBus&) = delete;
    ~PipeBus() override;

    bool PlugIn(std::shared_ptr<VirtualPanel> panel) override;
    void Unplug(const VirtualPanel& panel) override;
    void Send(const VirtualPanel& panel, const VirtualPanel::Report& report) override;
    int Readers(const VirtualPanel& panel) override;
    void Pause(uint32_t milliseconds) override;

  private:
    PipeDevice* Find(const VirtualPanel& panel) const;
    bool WriteList() const;

    std::string list_;
    std::vector<std::unique_ptr<PipeDevice>> devices_;
};

}  // namespace bench
