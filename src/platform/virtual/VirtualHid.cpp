#include "platform/virtual/VirtualHid.h"

#include <algorithm>

uintptr_t VirtualHid::Open(const std::string& path) {
    VirtualDevice* device = bus_.Find(path);
    if (faults_.Take(HidCall::Open) || !device) return 0;
    open_[nextHandle_] = device;
    return nextHandle_++;
}

bool VirtualHid::SetFeature(uintptr_t handle, std::span<const uint8_t> report) {
    VirtualDevice* device = Device(handle);
    if (faults_.Take(HidCall::SetFeature) || !device) return false;
    device->featureReports.emplace_back(report.begin(), report.end());
    return true;
}

bool VirtualHid::GetFeature(uintptr_t handle, std::span<uint8_t> report) {
    const VirtualDevice* device = Device(handle);
    if (faults_.Take(HidCall::GetFeature) || !device || report.empty()) return false;
    for (size_t i = 1; i < report.size(); ++i) {
        report[i] = i < device->positions.size() ? device->positions[i] : uint8_t{0};
    }
    return true;
}

void VirtualHid::Close(uintptr_t handle) {
    if (handle == 0) return;
    open_.erase(handle);
    closed_.push_back(handle);
}

VirtualDevice* VirtualHid::Device(uintptr_t handle) const {
    const auto found = open_.find(handle);
    return found != open_.end() && found->second->Plugged() ? found->second : nullptr;
}
