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
    DWORD_PTR own = 0;
    DWORD_PTR system = 0;
    if (mask == -1 || !GetProcessAffinityMask(GetCurrentProcess(), &own, &system)) return;
    // The system refuses a mask with processors that the process doesn't use.
    const DWORD_PTR cut = static_cast<uint32_t>(mask) & own;
    if (cut != 0) SetThreadAffinityMask(GetCurrentThread(), cut);
}

// ERROR_NO_SUCH_DEVICE, which not all headers have.
constexpr DWORD kNoSuchDevice = 433;

// Whether a read fails so for good. All else may pass: a bus that is reset or wakes from sleep
// fails or cancels reads of devices that stay.
bool IsGone(DWORD error) {
    switch (error) {
        case ERROR_FILE_NOT_FOUND:
        case ERROR_INVALID_HANDLE:
        case ERROR_DEV_NOT_EXIST:
        case ERROR_BROKEN_PIPE:
        case ERROR_NO_DATA:
        case ERROR_PIPE_NOT_CONNECTED:
        case kNoSuchDevice:
        case ERROR_DEVICE_NOT_CONNECTED:
        case ERROR_DEVICE_REMOVED:
            return true;
        default:
            return false;
    }
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
    // A device that fails, or gives nothing, over and over must not keep a processor busy.
    DWORD pause = 0;
    while (WaitForSingleObject(stop_.Get(), pause) == WAIT_TIMEOUT) {
        OVERLAPPED read{};
        read.hEvent = completed.Get();
        DWORD count = 0;
        const Outcome outcome = Read(read, buffer, count);
        if (outcome == Outcome::End) return;
        pause = outcome == Outcome::Nothing ? settings_.wait : 0;
        if (outcome == Outcome::Report) received_(std::span(buffer).first(count));
    }
}

Win32PanelReader::Outcome Win32PanelReader::Read(OVERLAPPED& read, std::span<uint8_t> buffer,
                                                 DWORD& count) const {
    if (!ReadFile(device_.Get(), buffer.data(), static_cast<DWORD>(buffer.size()), nullptr,
                  &read)) {
        const DWORD error = GetLastError();
        if (error != ERROR_IO_PENDING) return IsGone(error) ? Outcome::End : Outcome::Nothing;
    }
    if (!AwaitRead(read)) return Outcome::End;
    if (!GetOverlappedResult(device_.Get(), &read, &count, FALSE)) {
        return IsGone(GetLastError()) ? Outcome::End : Outcome::Nothing;
    }
    return count > 0 ? Outcome::Report : Outcome::Nothing;
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
