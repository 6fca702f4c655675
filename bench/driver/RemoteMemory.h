#pragma once

#include <windows.h>

#include <cstddef>

namespace bench {

// A piece of memory in the process of a window, for messages that carry addresses.
class RemoteMemory {
  public:
    RemoteMemory(HWND window, size_t size);
    RemoteMemory(const RemoteMemory&) = delete;
    RemoteMemory& operator=(const RemoteMemory&) = delete;
    ~RemoteMemory();

    // As an lParam; 0 when there is none.
    LPARAM Address() const { return reinterpret_cast<LPARAM>(memory_); }
    bool Read(void* to, size_t size) const;
    bool Write(const void* from, size_t size) const;

  private:
    HANDLE process_;
    void* memory_ = nullptr;
};

}  // namespace bench
