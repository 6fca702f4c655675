#pragma once

#include <windows.h>

#include <cstdint>

namespace bench {

// Asks again and again, every few milliseconds, until `condition` holds. False when it doesn't
// within the time.
template <class Condition>
bool Until(uint32_t milliseconds, Condition condition) {
    const ULONGLONG end = GetTickCount64() + milliseconds;
    while (!condition()) {
        if (GetTickCount64() >= end) return false;
        ::Sleep(15);
    }
    return true;
}

}  // namespace bench
