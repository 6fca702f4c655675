#pragma once

#include <cstddef>
#include <map>

#include "platform/HidPort.h"
#include "platform/virtual/Faults.h"
#include "platform/virtual/VirtualBus.h"

enum class HidCall : uint8_t { Open, SetFeature, GetFeature };

// Feature reports to and from the devices of the bus.
class VirtualHid : public HidPort {
  public:
    explicit VirtualHid(VirtualBus& bus) : bus_(bus) {}

    uintptr_t Open(const std::string& path) override;
    bool SetFeature(uintptr_t handle, std::span<const uint8_t> report) override;
    bool GetFeature(uintptr_t handle, std::span<uint8_t> report) override;
    void Close(uintptr_t handle) override;

    void Refuse(HidCall call, int times = Faults<HidCall>::kAlways) { faults_.Refuse(call, times); }

    size_t OpenCount() const { return open_.size(); }
    // Handles that were closed, in order; one that wasn't open counts as well.
    const std::vector<uintptr_t>& Closed() const { return closed_; }

  private:
    // The plugged device behind a handle, or null.
    VirtualDevice* Device(uintptr_t handle) const;

    VirtualBus& bus_;
    std::map<uintptr_t, VirtualDevice*> open_;
    std::vector<uintptr_t> closed_;
    uintptr_t nextHandle_ = 0x40;
    Faults<HidCall> faults_;
};
