#include "platform/virtual/VirtualLink.h"

VirtualLink::VirtualLink(VirtualBus& bus, Clock& clock, MessageLoop& loop,
                         std::shared_ptr<std::vector<LinkStart>> starts,
                         std::shared_ptr<int> reading)
    : bus_(bus),
      clock_(clock),
      loop_(loop),
      starts_(std::move(starts)),
      reading_(std::move(reading)) {}

VirtualLink::~VirtualLink() { VirtualLink::StopReading(); }

void VirtualLink::StartReading() {
    StopReading();
    session_ = std::make_shared<VirtualLink*>(this);
    ++*reading_;
    starts_->push_back({DeviceAddress, ReadWait, Priority, Affinity});
    VirtualDevice* device = bus_.Find(DeviceAddress);
    if (!device) return;
    reports_ = device->Reported.Connect([this](const VirtualDevice::Report& report) {
        if (report.size() < 4) return;
        loop_.Post([session = std::weak_ptr(session_), clock = clock_.GetTickCount(), report] {
            if (const auto link = session.lock()) {
                (*link)->ReportClock = clock;
                (*link)->RawInput.Raise(report[0], report[1], report[2], report[3]);
            }
        });
    });
}

void VirtualLink::StopReading() {
    if (!session_) return;
    reports_ = {};
    session_.reset();
    --*reading_;
}
