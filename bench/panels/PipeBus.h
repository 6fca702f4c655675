#pragma once

#include <memory>
#include <mutex>
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
    int Send(const VirtualPanel& panel, const VirtualPanel::Report& report) override;
    int Readers(const VirtualPanel& panel) override;
    void SetAnswerTime(const VirtualPanel& panel, std::chrono::milliseconds time) override;
    void Pause(uint32_t milliseconds) override;

  private:
    std::shared_ptr<PipeDevice> Find(const VirtualPanel& panel) const;
    bool WriteList() const;

    std::string list_;
    mutable std::mutex lock_;  // of the list
    std::vector<std::shared_ptr<PipeDevice>> devices_;
};

}  // namespace bench
