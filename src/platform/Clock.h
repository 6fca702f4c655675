#pragma once

#include <cstdint>

class Clock {
  public:
    virtual ~Clock() = default;

    // Milliseconds since some start; wraps after 49.7 days. Compare unsigned differences only.
    virtual uint32_t GetTickCount() = 0;

    // Holds the thread. Nothing of the message loop runs meanwhile.
    virtual void Sleep(uint32_t milliseconds) = 0;
};
