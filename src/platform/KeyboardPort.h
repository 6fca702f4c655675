#pragma once

#include <cstdint>
#include <span>

// A key that goes down or up.
struct KeyRecord {
    uint16_t wVk = 0;  // virtual key code
    bool up = false;

    bool operator==(const KeyRecord&) const = default;
};

// Keystrokes for whichever window has the focus.
class KeyboardPort {
  public:
    virtual ~KeyboardPort() = default;

    // Sends the records in order, with no other keystroke between them. What the system refuses is
    // lost.
    virtual void SendInput(std::span<const KeyRecord> records) = 0;
};
