#pragma once

#include <memory>

#include "platform/Clock.h"
#include "platform/Deckhub.h"
#include "platform/MessageLoop.h"
#include "platform/ReportInbox.h"
#include "platform/virtual/VirtualBus.h"

// Fields of a link, as they were when it began to read.
struct LinkStart {
    std::string deviceAddress;
    int32_t readWait = 0;
    int32_t priority = 0;
    int32_t affinity = 0;

    bool operator==(const LinkStart&) const = default;
};

// Brings the reports of a virtual device to the loop.
class VirtualLink : public PanelLink {
  public:
    // `starts` is the log that each start goes to. A deaf one can't open its device.
    VirtualLink(VirtualBus& bus, Clock& clock, MessageLoop& loop,
                std::shared_ptr<std::vector<LinkStart>> starts, std::shared_ptr<int> reading,
                bool deaf = false);
    ~VirtualLink() override;

    void StartReading() override;
    void StopReading() override;

  private:
    VirtualBus& bus_;
    Clock& clock_;
    MessageLoop& loop_;
    std::shared_ptr<std::vector<LinkStart>> starts_;
    std::shared_ptr<int> reading_;        // how many links read, shared by all of them
    std::shared_ptr<ReportInbox> inbox_;  // of the reading under way
    const bool deaf_;
    ScopedConnection reports_;
};
