#pragma once

#include <windows.h>

#include <cstdint>
#include <utility>

// Owns a kernel handle; INVALID_HANDLE_VALUE counts as none.
class Win32Handle {
  public:
    Win32Handle() = default;
    explicit Win32Handle(HANDLE handle)
        : handle_(handle == INVALID_HANDLE_VALUE ? nullptr : handle) {}
    Win32Handle(Win32Handle&& other) noexcept : handle_(std::exchange(other.handle_, nullptr)) {}
    Win32Handle& operator=(Win32Handle&& other) noexcept {
        std::swap(handle_, other.handle_);
        return *this;
    }
    Win32Handle(const Win32Handle&) = delete;
    Win32Handle& operator=(const Win32Handle&) = delete;
    ~Win32Handle() {
        if (handle_) CloseHandle(handle_);
    }

    HANDLE Get() const { return handle_; }
    explicit operator bool() const { return handle_ != nullptr; }

    // Gives the handle up to the caller.
    HANDLE Release() { return std::exchange(handle_, nullptr); }

  private:
    HANDLE handle_ = nullptr;
};

// The ports carry handles and windows as plain numbers.
inline uintptr_t ToNumber(void* handle) { return reinterpret_cast<uintptr_t>(handle); }
inline HANDLE ToHandle(uintptr_t number) { return reinterpret_cast<HANDLE>(number); }
inline HWND ToWindow(uintptr_t number) { return reinterpret_cast<HWND>(number); }
