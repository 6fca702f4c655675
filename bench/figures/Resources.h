#pragma once

#include <windows.h>

#include <cstddef>
#include <cstdint>

namespace bench {

// What a process has taken of the system.
struct Resources {
    uint64_t privateBytes = 0;
    size_t handles = 0;
    size_t windows = 0;
    size_t gdiObjects = 0;
};

Resources ResourcesOf(DWORD process);

}  // namespace bench
