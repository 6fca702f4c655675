#pragma once

#include <cstdint>

// What a control of a panel does.
enum class ActionKind : int32_t {
    None = 0,
    Offset = 1,   // the control's built-in behaviour
    VButton = 2,  // a virtual joystick button of the simulator link
    VKey = 3,     // a keystroke
};

// One action. What the other fields mean depends on FSEvent; with None and Offset they mean
// nothing.
struct ActionRecord {
    ActionKind FSEvent = ActionKind::None;
    uint8_t VJoystickOrKeyCode = 0;      // VButton: joystick 64 to 72; VKey: virtual key code
    uint8_t VButtonOrKeyQualifiers = 0;  // VButton: button 1 to 32; VKey: 1 SHIFT, 2 CTRL, 4 TAB
    int16_t KeyAscii = 0;                // VKey: character of the key, to show its name

    bool operator==(const ActionRecord&) const = default;

    // Whether both press the same virtual button.
    bool SameButton(const ActionRecord& other) const {
        return FSEvent == ActionKind::VButton && other.FSEvent == ActionKind::VButton &&
               VJoystickOrKeyCode == other.VJoystickOrKeyCode &&
               VButtonOrKeyQualifiers == other.VButtonOrKeyQualifiers;
    }
};
