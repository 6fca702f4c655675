#include "platform/win32/Win32PanelReader.h"

#include <array>

namespace {

void ApplyPriority(int32_t priorityClass) {
    int level = THREAD_PRIORITY_NORMAL;
    switch (priorityClass) {
        case IDLE_PRIORITY_CLASS:
            level = THREAD_PRIORITY_IDLE;
            break;
        case BELOW_NORMAL_PRIORITY_CLASS:
            level = THREAD_PRIORITY_BELOW_NORMAL;
            break;
        case NORMAL_PRIORITY_CLASS:
            level = THREAD_PRIORITY_NORMAL;
            break;
        case ABOVE_NORMAL_PRIORITY_CLASS:
            level = THREAD_PRIORITY_ABOVE_NORMAL;
            break;
        case HIGH_PRIORITY_CLASS:
            level = THREAD_PRIORITY_HIGHEST;
            break;
        case REALTIME_PRIORITY_CLASS:
            level = THREAD_PRIORITY_TIME_CRITICAL;
            break;
        default:
            return;
    }
    SetThreadPriority(GetCurrentThread(), level);
}

void ApplyAffinity(int32_t mask) {
    if (mask == -1) return;
    SetThreadAffinityMask(GetCurrentThread(), static_cast<uint32_t>(mask));
}

}  // namespace

Win32PanelReader::Win32PanelReader(Win32Handle device, const Settings& settings,
                                   std::function<void(std::span<const uint8_t>)> received)
    : device_(std::move(device)),
      stop_(CreateEventW(nullptr, TRUE, FALSE, nullptr)),
      settings_(settings),
      received_(std::move(received)),
      thread_([this] { Run(); }) {}

Win32PanelReader::~Win32PanelReader() {
    SetEvent(stop_.Get());
    thread_.join();
}

void Win32PanelReader::Run() const {
    ApplyPriority(settings_.priority);
    ApplyAffinity(settings_.affinity);
    const Win32Handle completed(CreateEventW(nullptr, TRUE, FALSE, nullptr));
    std::array<uint8_t, 64> buffer{};
    for (;;) {
        OVERLAPPED read{};
        read.hEvent = completed.Get();
        const bool begun = ReadFile(device_.Get(), buffer.data(), static_cast<DWORD>(buffer.size()),
                                    nullptr, &read) ||
                           GetLastError() == ERROR_IO_PENDING;
        if (!begun || !AwaitRead(read)) return;
        DWORD count = 0;
        // A device that gives nothing over and over is as good as gone.
        if (!GetOverlappedResult(device_.Get(), &read, &count, FALSE) || count == 0) return;
        received_(std::span(buffer).first(count));
    }
}

// False when the thread is to end; the buffer is free by then. A read that times out is left
// running, so that no report falls between two reads.
bool Win32PanelReader::AwaitRead(OVERLAPPED& read) const {
    const HANDLE waits[] = {stop_.Get(), read.hEvent};
    DWORD result = WAIT_TIMEOUT;
    while (result == WAIT_TIMEOUT) {
        result = WaitForMultipleObjects(2, waits, FALSE, settings_.wait);
    }
    if (result == WAIT_OBJECT_0 + 1) return true;
    CancelIoEx(device_.Get(), &read);
    DWORD count = 0;
    GetOverlappedResult(device_.Get(), &read, &count, TRUE);
    return false;
}
