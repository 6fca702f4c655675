#pragma once

#include <cstdint>

// A keystroke that the user has chosen.
struct CapturedKey {
    uint8_t KeyCode = 0;        // virtual key
    uint8_t KeyQualifiers = 0;  // 1 SHIFT, 2 CTRL, 4 TAB
    int16_t KeyAscii = 0;       // the key's character

    bool operator==(const CapturedKey&) const = default;
};

// Makes a keystroke of the keys that the user presses: qualifiers first, one after the other, and
// the key itself last. Takes virtual keys, 0 to 255, and the character between down and up.
class KeyCapture {
  public:
    // What the key asks for.
    enum class Answer { Nothing, MarksChanged, AltRefused, Captured };

    Answer KeyDown(int32_t key);
    void KeyPress(uint8_t character) { ascii_ = character; }
    Answer KeyUp(int32_t key);

    // Bits as those of KeyQualifiers. A mark stays once it is on.
    uint8_t Marks() const { return marks_; }
    // Empty until a key has been captured.
    const CapturedKey& Result() const { return result_; }

  private:
    uint8_t marks_ = 0;
    int16_t ascii_ = 0;
    CapturedKey result_;
};
