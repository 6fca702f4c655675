#include "platform/win32/Win32Keyboard.h"

#include <windows.h>

#include <vector>

void Win32Keyboard::SendInput(std::span<const KeyRecord> records) {
    std::vector<INPUT> inputs;
    for (const KeyRecord& record : records) {
        INPUT input{};
        input.type = INPUT_KEYBOARD;
        input.ki.wVk = record.wVk;
        input.ki.dwFlags = record.up ? KEYEVENTF_KEYUP : 0;
        inputs.push_back(input);
    }
    ::SendInput(static_cast<UINT>(inputs.size()), inputs.data(), sizeof(INPUT));
}
