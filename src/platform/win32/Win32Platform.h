#pragma once

#include <memory>

#include "platform/Platform.h"

class Win32Loop;

// The machine itself: makes and holds the real adapter of each port, for the thread that makes it.
class Win32Platform {
  public:
    Win32Platform();
    Win32Platform(const Win32Platform&) = delete;
    Win32Platform& operator=(const Win32Platform&) = delete;
    ~Win32Platform();

    // Valid as long as this lives.
    Platform Ports();
    Win32Loop& Loop();

  private:
    struct Parts;
    std::unique_ptr<Parts> parts_;
};
