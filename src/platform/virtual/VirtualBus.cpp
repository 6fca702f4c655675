#include "platform/virtual/VirtualBus.h"

#include <algorithm>

#include "base/Text.h"

VirtualDevice& VirtualBus::Add(int32_t vendorId, int32_t productId, const std::string& path) {
    devices_.push_back(std::make_unique<VirtualDevice>(vendorId, productId, path));
    return *devices_.back();
}

VirtualDevice* VirtualBus::Find(const std::string& path) const {
    for (const auto& device : devices_) {
        if (device->Plugged() && EqualNoCase(device->path, path)) return device.get();
    }
    return nullptr;
}

std::vector<std::string> VirtualBus::Paths(int32_t vendorId, int32_t productId) const {
    std::vector<std::string> paths;
    for (const auto& device : devices_) {
        if (!device->Plugged()) continue;
        if (device->vendorId == vendorId && device->productId == productId) {
            paths.push_back(device->path);
        }
    }
    std::ranges::sort(paths, {}, [](const std::string& path) { return ToLower(path); });
    return paths;
}
