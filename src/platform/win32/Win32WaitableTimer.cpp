#include "platform/win32/Win32WaitableTimer.h"

#include <algorithm>

namespace {

// CREATE_WAITABLE_TIMER_HIGH_RESOLUTION, which not all headers have. Systems before Windows 10 1803
// refuse it.
constexpr DWORD kHighResolution = 0x00000002;
constexpr DWORD kAccess = SYNCHRONIZE | TIMER_MODIFY_STATE;

}  // namespace

Win32WaitableTimer::Win32WaitableTimer()
    : timer_(CreateWaitableTimerExW(nullptr, nullptr, kHighResolution, kAccess)),
      fine_(timer_.Get() != nullptr) {
    if (!fine_) timer_ = Win32Handle(CreateWaitableTimerExW(nullptr, nullptr, 0, kAccess));
}

void Win32WaitableTimer::Set(std::chrono::steady_clock::time_point moment,
                             std::chrono::milliseconds interval) {
    using Units = std::chrono::duration<int64_t, std::ratio<1, 10'000'000>>;
    const auto rest = std::chrono::ceil<Units>(moment - std::chrono::steady_clock::now()).count();
    // A negative number is a time from now.
    LARGE_INTEGER due{};
    due.QuadPart = -std::max<int64_t>(rest, 1);
    SetWaitableTimer(timer_.Get(), &due, static_cast<LONG>(interval.count()), nullptr, nullptr,
                     FALSE);
}

void Win32WaitableTimer::Cancel() { CancelWaitableTimer(timer_.Get()); }
