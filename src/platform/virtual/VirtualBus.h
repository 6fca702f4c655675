#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "platform/virtual/VirtualDevice.h"

// All panels of the virtual machine, unplugged ones included.
class VirtualBus {
  public:
    // The device stays where it is as long as the bus lives.
    VirtualDevice& Add(int32_t vendorId, int32_t productId, const std::string& path);

    // The plugged device of this path, or null. Paths compare without regard to case.
    VirtualDevice* Find(const std::string& path) const;

    // Paths of the plugged devices of one kind, sorted.
    std::vector<std::string> Paths(int32_t vendorId, int32_t productId) const;

  private:
    std::vector<std::unique_ptr<VirtualDevice>> devices_;
};
