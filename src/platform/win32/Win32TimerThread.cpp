#include "platform/win32/Win32TimerThread.h"

Win32TimerThread::Win32TimerThread(std::function<std::optional<Moment>()> due)
    : due_(std::move(due)),
      stop_(CreateEventW(nullptr, TRUE, FALSE, nullptr)),
      thread_([this] { Run(); }) {}

Win32TimerThread::~Win32TimerThread() {
    SetEvent(stop_.Get());
    thread_.join();
}

void Win32TimerThread::WakeAt(Moment moment) {
    const std::lock_guard lock(mutex_);
    if (wakesAt_ && *wakesAt_ <= moment) return;
    wakesAt_ = moment;
    timer_.Set(moment);
}

void Win32TimerThread::Run() {
    const HANDLE waits[] = {stop_.Get(), timer_.Get()};
    while (WaitForMultipleObjects(2, waits, FALSE, INFINITE) == WAIT_OBJECT_0 + 1) {
        const std::lock_guard lock(mutex_);
        wakesAt_ = due_();
        if (wakesAt_) timer_.Set(*wakesAt_);
    }
}
