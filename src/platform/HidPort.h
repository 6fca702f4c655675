#pragma once

#include <cstdint>
#include <span>
#include <string>

// Feature reports to and from a panel's device file. Calls are synchronous.
class HidPort {
  public:
    virtual ~HidPort() = default;

    // Shared, for reading and writing. Gives 0 when it can't be opened.
    virtual uintptr_t Open(const std::string& path) = 0;

    // The report's first byte is the report id. False when the device didn't take it; handle 0 is
    // such a case.
    virtual bool SetFeature(uintptr_t handle, std::span<const uint8_t> report) = 0;

    // Fills `report`; its first byte holds the wanted report id on entry. When false is given the
    // rest is as it was.
    virtual bool GetFeature(uintptr_t handle, std::span<uint8_t> report) = 0;

    // Handle 0 is ignored.
    virtual void Close(uintptr_t handle) = 0;
};
