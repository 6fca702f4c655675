#pragma once

#include <cstdint>
#include <initializer_list>
#include <span>
#include <string>
#include <vector>

#include "base/Event.h"

// A panel on the virtual bus, as the bus sees it: what was sent to it, and what it reports.
class VirtualDevice {
  public:
    using Report = std::vector<uint8_t>;

    VirtualDevice(int32_t vendor, int32_t product, std::string devicePath)
        : vendorId(vendor), productId(product), path(std::move(devicePath)) {}

    // An input report to all links that read this device. Nothing once it was unplugged.
    void SendReport(std::initializer_list<uint8_t> bytes) {
        if (plugged_) Reported.Raise(Report(bytes));
    }

    void Unplug() { plugged_ = false; }
    bool Plugged() const { return plugged_; }

    const int32_t vendorId;
    const int32_t productId;
    const std::string path;

    std::vector<Report> featureReports;  // every SetFeature that the device took, in order
    Report positions;                    // what GetFeature gives; 0 for the bytes it hasn't

    Event<const Report&> Reported;

  private:
    bool plugged_ = true;
};
