#pragma once

#include "platform/Clock.h"

class Win32Clock final : public Clock {
  public:
    uint32_t GetTickCount() override;
    void Sleep(uint32_t milliseconds) override;
};
