#pragma once

#include "platform/KeyboardPort.h"

class Win32Keyboard final : public KeyboardPort {
  public:
    void SendInput(std::span<const KeyRecord> records) override;
};
