#pragma once

#include <vector>

#include "platform/Deckhub.h"

class Win32HidLibrary;
class Win32SetupLibrary;

class Win32PanelEnumerator final : public PanelEnumerator {
  public:
    Win32PanelEnumerator(std::shared_ptr<const Win32HidLibrary> hid,
                         std::unique_ptr<const Win32SetupLibrary> setup);
    ~Win32PanelEnumerator() override;

    int16_t CountPanels(int32_t vendorId, int32_t productId) override;
    std::string GetPanelPath(int16_t index) override;

  private:
    std::vector<std::string> HidPaths() const;
    bool IsOfKind(const std::string& path, int32_t vendorId, int32_t productId) const;

    std::shared_ptr<const Win32HidLibrary> hid_;
    std::unique_ptr<const Win32SetupLibrary> setup_;
    std::vector<std::string> paths_;
};
