#pragma once

#include "platform/Clock.h"
#include "platform/Deckhub.h"
#include "platform/MessageLoop.h"
#include "platform/virtual/Faults.h"
#include "platform/virtual/VirtualBus.h"
#include "platform/virtual/VirtualLink.h"

enum class DeckhubCall : uint8_t { CreateEnumerator, StartReading };

// Finds and reads the devices of the bus.
class VirtualDeckhub : public Deckhub {
  public:
    VirtualDeckhub(VirtualBus& bus, Clock& clock, MessageLoop& loop)
        : bus_(bus), clock_(clock), loop_(loop) {}

    std::unique_ptr<PanelEnumerator> CreateEnumerator() override;
    std::unique_ptr<PanelLink> CreateLink() override;

    // A refused enumerator can't be had, a refused reading brings nothing.
    void Refuse(DeckhubCall call, int times = Faults<DeckhubCall>::kAlways) {
        faults_.Refuse(call, times);
    }

    // Every start of reading so far, with the link's fields as they were then.
    const std::vector<LinkStart>& Starts() const { return *starts_; }
    int ReadingCount() const { return *reading_; }

  private:
    VirtualBus& bus_;
    Clock& clock_;
    MessageLoop& loop_;
    std::shared_ptr<std::vector<LinkStart>> starts_ = std::make_shared<std::vector<LinkStart>>();
    std::shared_ptr<int> reading_ = std::make_shared<int>(0);
    Faults<DeckhubCall> faults_;
};
