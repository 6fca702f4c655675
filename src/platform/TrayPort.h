#pragma once

#include <cstdint>
#include <string>

#include "base/Event.h"

enum class TrayIcon : uint8_t { None, Yellow, Green };

// What the notification area is told of an icon. `flags`: 1 message, 2 icon, 4 tip.
struct TrayRecord {
    uint32_t id = 0;
    uint32_t flags = 0;
    uint32_t callbackMessage = 0;
    TrayIcon icon = TrayIcon::None;
    std::string tip;  // at most 63 characters
};

class TrayPort {
  public:
    virtual ~TrayPort() = default;

    // `message` is 0 to add, 1 to modify, 2 to delete. False when the system refuses. An icon that
    // was added comes back by itself when the task bar is made anew.
    virtual bool NotifyIcon(uint32_t message, const TrayRecord& record) = 0;

    // Number of the mouse message (512 move ... 518 right double click) that the icon got.
    Event<int32_t> MouseActivity;
};
