#pragma once

#include <memory>
#include <optional>

#include "platform/TrayPort.h"

class Win32HiddenWindow;

class Win32Tray final : public TrayPort {
  public:
    Win32Tray();
    Win32Tray(const Win32Tray&) = delete;
    Win32Tray& operator=(const Win32Tray&) = delete;
    ~Win32Tray() override;

    bool NotifyIcon(uint32_t message, const TrayRecord& record) override;

  private:
    intptr_t Handle(void* window, uint32_t message, uintptr_t wParam, intptr_t lParam);
    void Remember(uint32_t message, const TrayRecord& record);
    bool Tell(uint32_t message, const TrayRecord& record) const;

    uint32_t taskBarCreated_;
    // What the icon should be like now; nothing when there is to be none. Kept when the system
    // refuses: at log-on the task bar may come later than the program, or be too busy to answer.
    std::optional<TrayRecord> icon_;
    std::unique_ptr<Win32HiddenWindow> window_;
};
