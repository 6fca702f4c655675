#include "platform/win32/Win32TimerThread.h"

#include <mmsystem.h>

#include <algorithm>

namespace {

// CREATE_WAITABLE_TIMER_HIGH_RESOLUTION, which not all headers have. Systems before Windows 10 1803
// refuse it.
constexpr DWORD kHighResolution = 0x00000002;
constexpr DWORD kTimerAccess = SYNCHRONIZE | TIMER_MODIFY_STATE;

// Length of the system's own clock tick, which an ordinary timer can't go below by itself.
constexpr std::chrono::milliseconds kSystemTick{16};

}  // namespace

Win32TimerThread::Win32TimerThread(std::function<void(uint32_t)> due)
    : due_(std::move(due)),
      changed_(CreateEventW(nullptr, FALSE, FALSE, nullptr)),
      waitable_(CreateWaitableTimerExW(nullptr, nullptr, kHighResolution, kTimerAccess)),
      highResolution_(waitable_.Get() != nullptr) {
    if (!highResolution_) {
        waitable_ = Win32Handle(CreateWaitableTimerExW(nullptr, nullptr, 0, kTimerAccess));
    }
    thread_ = std::thread([this] { Run(); });
}

Win32TimerThread::~Win32TimerThread() {
    {
        const std::lock_guard lock(mutex_);
        ending_ = true;
        timers_.clear();
        ChoosePeriod();
    }
    SetEvent(changed_.Get());
    thread_.join();
}

void Win32TimerThread::Start(uint32_t id, uint32_t intervalMs) {
    const std::chrono::milliseconds interval(std::max(intervalMs, 1u));
    const std::lock_guard lock(mutex_);
    timers_.push_back({id, interval, SteadyClock::now() + interval});
    ChoosePeriod();
    SetEvent(changed_.Get());
}

void Win32TimerThread::Stop(uint32_t id) {
    const std::lock_guard lock(mutex_);
    std::erase_if(timers_, [id](const Timer& timer) { return timer.id == id; });
    ChoosePeriod();
    SetEvent(changed_.Get());
}

void Win32TimerThread::Run() {
    for (;;) {
        Arm(RaiseDue());
        const HANDLE waits[] = {changed_.Get(), waitable_.Get()};
        WaitForMultipleObjects(2, waits, FALSE, INFINITE);
        const std::lock_guard lock(mutex_);
        if (ending_) return;
    }
}

std::optional<Win32TimerThread::SteadyClock::time_point> Win32TimerThread::RaiseDue() {
    std::optional<SteadyClock::time_point> next;
    const std::lock_guard lock(mutex_);
    const auto now = SteadyClock::now();
    for (Timer& timer : timers_) {
        if (timer.due <= now) {
            due_(timer.id);
            // To the first due time that is still ahead: keeps the rhythm, makes up for nothing.
            timer.due += timer.interval * ((now - timer.due) / timer.interval + 1);
        }
        if (!next || timer.due < *next) next = timer.due;
    }
    return next;
}

void Win32TimerThread::Arm(std::optional<SteadyClock::time_point> next) {
    if (!next) {
        CancelWaitableTimer(waitable_.Get());
        return;
    }
    using Units = std::chrono::duration<int64_t, std::ratio<1, 10'000'000>>;
    const auto rest = std::chrono::ceil<Units>(*next - SteadyClock::now()).count();
    // A negative number is a time from now.
    LARGE_INTEGER due{};
    due.QuadPart = -std::max<int64_t>(rest, 1);
    SetWaitableTimer(waitable_.Get(), &due, 0, nullptr, nullptr, FALSE);
}

void Win32TimerThread::ChoosePeriod() {
    const bool fine = !highResolution_ &&
                      std::any_of(timers_.begin(), timers_.end(),
                                  [](const Timer& timer) { return timer.interval < kSystemTick; });
    if (fine == finePeriod_) return;
    finePeriod_ = fine;
    if (fine) {
        timeBeginPeriod(1);
    } else {
        timeEndPeriod(1);
    }
}
