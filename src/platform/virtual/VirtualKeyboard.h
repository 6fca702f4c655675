#pragma once

#include <vector>

#include "platform/KeyboardPort.h"

// Keeps what is typed, one entry for each call.
struct VirtualKeyboard : KeyboardPort {
    void SendInput(std::span<const KeyRecord> records) override {
        typed.emplace_back(records.begin(), records.end());
    }

    std::vector<std::vector<KeyRecord>> typed;
};
