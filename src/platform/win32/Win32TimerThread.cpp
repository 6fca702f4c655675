#include "platform/win32/Win32TimerThread.h"

#include <mmsystem.h>

#include <algorithm>

#include "platform/win32/Win32Library.h"

namespace {

// CREATE_WAITABLE_TIMER_HIGH_RESOLUTION, which not all headers have. Systems before Windows 10 1803
// refuse it.
constexpr DWORD kHighResolution = 0x00000002;
constexpr DWORD kTimerAccess = SYNCHRONIZE | TIMER_MODIFY_STATE;

// Length of the system's own clock tick, which an ordinary timer can't go below by itself.
constexpr std::chrono::milliseconds kSystemTick{16};

// Newer systems slow down programs that show no window, and make their timers coarse; asks them not
// to. Older ones know nothing of it, or only of the speed.
void DeclineThrottling() {
    const Win32Library kernel(L"kernel32.dll");
    BOOL(WINAPI * setInformation)(HANDLE, PROCESS_INFORMATION_CLASS, LPVOID, DWORD) = nullptr;
    kernel.Find("SetProcessInformation", setInformation);
    if (!setInformation) return;
    PROCESS_POWER_THROTTLING_STATE state{};
    state.Version = PROCESS_POWER_THROTTLING_CURRENT_VERSION;
    for (const ULONG controlled : {PROCESS_POWER_THROTTLING_EXECUTION_SPEED |
                                       PROCESS_POWER_THROTTLING_IGNORE_TIMER_RESOLUTION,
                                   PROCESS_POWER_THROTTLING_EXECUTION_SPEED}) {
        state.ControlMask = controlled;
        if (setInformation(GetCurrentProcess(), ProcessPowerThrottling, &state, sizeof state)) {
            return;
        }
    }
}

}  // namespace

Win32TimerThread::Win32TimerThread(std::function<void(uint32_t)> due)
    : due_(std::move(due)),
      changed_(CreateEventW(nullptr, FALSE, FALSE, nullptr)),
      waitable_(CreateWaitableTimerExW(nullptr, nullptr, kHighResolution, kTimerAccess)),
      highResolution_(waitable_.Get() != nullptr) {
    if (!highResolution_) {
        waitable_ = Win32Handle(CreateWaitableTimerExW(nullptr, nullptr, 0, kTimerAccess));
    }
    DeclineThrottling();
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

void Win32TimerThread::Start(uint32_t id, uint32_t intervalMs) { Add(id, intervalMs, false); }

void Win32TimerThread::StartOnce(uint32_t id, uint32_t delayMs) { Add(id, delayMs, true); }

void Win32TimerThread::Add(uint32_t id, uint32_t intervalMs, bool once) {
    const std::chrono::milliseconds interval(std::max(intervalMs, 1u));
    const std::lock_guard lock(mutex_);
    timers_.push_back({id, interval, SteadyClock::now() + interval, once});
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
        if (timer.due <= now) due_(timer.id);
    }
    const auto spent = [now](const Timer& timer) { return timer.once && timer.due <= now; };
    if (std::erase_if(timers_, spent) > 0) ChoosePeriod();
    for (Timer& timer : timers_) {
        if (timer.due <= now) {
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
