#pragma once

#include <memory>

#include "platform/HidPort.h"

class Win32HidLibrary;

class Win32Hid final : public HidPort {
  public:
    explicit Win32Hid(std::shared_ptr<const Win32HidLibrary> library);

    uintptr_t Open(const std::string& path) override;
    bool SetFeature(uintptr_t handle, std::span<const uint8_t> report) override;
    bool GetFeature(uintptr_t handle, std::span<uint8_t> report) override;
    void Close(uintptr_t handle) override;

  private:
    std::shared_ptr<const Win32HidLibrary> library_;
};
