#pragma once

#include <cstdint>
#include <string>

// Name of a keystroke for the user, "CTRL-SHIFT-F1". `KeyAscii` is the key's character, which names
// a key that has no name of its own; "???" where there is none either.
std::string KeyStrokeText(uint8_t KeyCode, uint8_t KeyQualifiers, int16_t KeyAscii);
