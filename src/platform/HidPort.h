#pragma once

#include <cstdint>
#include <span>
#include <string>

// Feature reports to and from a panel's device file, in the order of the calls. A panel that is
// slow, or hangs, holds up no call for more than two seconds in all.
class HidPort {
  public:
    virtual ~HidPort() = default;

    // Shared, for reading and writing. Gives 0 when it can't be opened.
    virtual uintptr_t Open(const std::string& path) = 0;

    // The report's first byte is the report id. It may still be on its way when this returns; of
    // those that a slow panel leaves waiting only the latest under each report id is sent. False
    // when it is known that the device won't take it; handle 0 is such a case.
    virtual bool SetFeature(uintptr_t handle, std::span<const uint8_t> report) = 0;

    // Fills `report`, once what was set before is sent; its first byte holds the wanted report id
    // on entry. When false is given the rest is as it was.
    virtual bool GetFeature(uintptr_t handle, std::span<uint8_t> report) = 0;

    // What was set before is sent first. Handle 0 is ignored.
    virtual void Close(uintptr_t handle) = 0;
};
