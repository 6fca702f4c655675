#include "platform/virtual/VirtualLink.h"

VirtualLink::VirtualLink(VirtualBus& bus, Clock& clock, MessageLoop& loop,
                         std::shared_ptr<std::vector<LinkStart>> starts,
                         std::shared_ptr<int> reading, bool deaf)
    : bus_(bus),
      clock_(clock),
      loop_(loop),
      starts_(std::move(starts)),
      reading_(std::move(reading)),
      deaf_(deaf) {}

VirtualLink::~VirtualLink() { VirtualLink::StopReading(); }

void VirtualLink::StartReading() {
    StopReading();
    inbox_ = std::make_shared<ReportInbox>(
        loop_,
        [this](const ReportInbox::Report& report) {
            ReportClock = report.clock;
            const auto& [b0, b1, b2, b3] = report.bytes;
            RawInput.Raise(b0, b1, b2, b3);
        },
        ReportInbox::kNoLimit);
    ++*reading_;
    starts_->push_back({DeviceAddress, ReadWait, Priority, Affinity});
    VirtualDevice* device = bus_.Find(DeviceAddress);
    if (!device || deaf_) return;
    reports_ = device->Reported.Connect([this](const VirtualDevice::Report& report) {
        if (report.size() < 4) return;
        inbox_->Put({{report[0], report[1], report[2], report[3]}, clock_.GetTickCount()});
    });
}

void VirtualLink::StopReading() {
    if (!inbox_) return;
    reports_ = {};
    inbox_->Close();
    inbox_.reset();
    --*reading_;
}
