#pragma once

#include <cstdint>
#include <functional>
#include <span>
#include <thread>

#include "platform/win32/Win32Handle.h"

// A thread that reads one device until it ends or the device is gone.
class Win32PanelReader {
  public:
    struct Settings {
        DWORD wait = 1;         // milliseconds of one wait, at least 1; also before trying again
        int32_t priority = 0;   // priority class, 0 to leave it
        int32_t affinity = -1;  // processor mask, -1 to leave it
    };

    // `device` is open for overlapped reading. `received` is called on the reader's thread with the
    // bytes of each read.
    Win32PanelReader(Win32Handle device, const Settings& settings,
                     std::function<void(std::span<const uint8_t>)> received);
    Win32PanelReader(const Win32PanelReader&) = delete;
    Win32PanelReader& operator=(const Win32PanelReader&) = delete;
    // Waits for the thread.
    ~Win32PanelReader();

  private:
    enum class Outcome { Report, Nothing, End };

    void Run() const;
    Outcome Read(OVERLAPPED& read, std::span<uint8_t> buffer, DWORD& count) const;
    bool AwaitRead(OVERLAPPED& read) const;

    Win32Handle device_;
    Win32Handle stop_;
    Settings settings_;
    std::function<void(std::span<const uint8_t>)> received_;
    std::thread thread_;
};
