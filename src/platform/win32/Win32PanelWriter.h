#pragma once

#include <memory>
#include <span>
#include <thread>

#include "platform/win32/Win32Handle.h"

class Win32HidLibrary;

// Writes to one panel, and reads from it, on a thread of its own: a panel on a busy hub takes its
// time for each report, and one that hangs never gives it back.
class Win32PanelWriter {
  public:
    // `device` is open for synchronous work.
    Win32PanelWriter(Win32Handle device, std::shared_ptr<const Win32HidLibrary> library);
    Win32PanelWriter(const Win32PanelWriter&) = delete;
    Win32PanelWriter& operator=(const Win32PanelWriter&) = delete;
    // Waits for what is still to be sent, with patience: a panel that hangs is left alone.
    ~Win32PanelWriter();

    uintptr_t Number() const;

    // Returns at once. False when it can't be sent.
    bool SetFeature(std::span<const uint8_t> report);
    // After what is to be sent before. False when the panel doesn't give it, or not in time.
    bool GetFeature(std::span<uint8_t> report);

  private:
    struct Traffic;

    // The thread may outlive this object.
    std::shared_ptr<Traffic> traffic_;
    std::thread thread_;
};
