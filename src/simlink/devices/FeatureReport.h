#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "platform/HidPort.h"

// The feature report of a panel's displays, and the one sent last: only a change goes over the bus.
template <size_t Size>
class FeatureReport {
  public:
    std::array<uint8_t, Size> bytes{};

    // Sends the report if it differs from the last one sent, or the caller forces it, or the panel
    // was darkened since.
    void WriteIfChanged(HidPort& hid, uintptr_t handle, bool force) {
        if (bytes == last_ && !force && !dark_) return;
        dark_ = false;
        hid.SetFeature(handle, bytes);
        last_ = bytes;
    }

    // Sends the report, which darkens the panel. The next WriteIfChanged sends in any case.
    void WriteDark(HidPort& hid, uintptr_t handle) {
        dark_ = true;
        hid.SetFeature(handle, bytes);
    }

  private:
    std::array<uint8_t, Size> last_{};
    bool dark_ = true;
};
