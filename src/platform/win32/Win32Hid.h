#pragma once

#include <memory>
#include <vector>

#include "platform/HidPort.h"

class Win32HidLibrary;
class Win32PanelWriter;

class Win32Hid final : public HidPort {
  public:
    explicit Win32Hid(std::shared_ptr<const Win32HidLibrary> library);
    ~Win32Hid() override;

    uintptr_t Open(const std::string& path) override;
    bool SetFeature(uintptr_t handle, std::span<const uint8_t> report) override;
    bool GetFeature(uintptr_t handle, std::span<uint8_t> report) override;
    void Close(uintptr_t handle) override;

  private:
    // Null for a handle that isn't open.
    Win32PanelWriter* WriterOf(uintptr_t handle) const;

    std::shared_ptr<const Win32HidLibrary> library_;
    std::vector<std::unique_ptr<Win32PanelWriter>> writers_;
};
