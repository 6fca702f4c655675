#pragma once

#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <vector>

#include "platform/MessageLoop.h"

class Win32HiddenWindow;
class Win32TimerThread;

// The loop of the thread that makes it. Tasks and ticks come as messages to a window of its own, so
// that they run in whichever loop takes messages, the system's message boxes and menus included.
class Win32Loop final : public MessageLoop {
  public:
    Win32Loop();
    Win32Loop(const Win32Loop&) = delete;
    Win32Loop& operator=(const Win32Loop&) = delete;
    ~Win32Loop() override;

    void Run() override;
    void RunPending() override;
    void RunUntil(const std::function<bool()>& done) override;
    void Post(std::function<void()> task) override;
    TimerId StartTimer(uint32_t intervalMs, std::function<void()> tick) override;
    void StopTimer(TimerId timer) override;
    void Quit() override;

    // Asked for each message (MSG) of the keyboard, before it is translated and dispatched: whether
    // it has been dealt with.
    std::function<bool(void* message)> TakesMessage;

  private:
    // Tasks and waiting ticks are numbered in one row, in the order of coming.
    struct Task {
        uint64_t number;
        std::function<void()> call;
    };
    struct Timer {
        TimerId id;
        std::function<void()> tick;
        uint64_t waiting = 0;  // number of the tick that waits, 0 for none
    };

    intptr_t Handle(void* window, uint32_t message, uintptr_t wParam, intptr_t lParam);
    void Dispatch(void* taken) const;
    void TakeWake();
    bool MustGiveWay();
    bool RunFirst(uint64_t last);
    void MarkDue(TimerId timer);
    // These three need the lock.
    std::shared_ptr<Timer> FirstTick() const;
    uint64_t FirstNumber() const;
    void Wake();

    std::mutex mutex_;
    std::deque<Task> tasks_;
    std::vector<std::shared_ptr<Timer>> timers_;
    uint64_t lastNumber_ = 0;
    bool wakeWaits_ = false;

    TimerId lastTimer_ = 0;
    bool quit_ = false;
    bool crowded_ = false;
    uint64_t batchEnd_ = 0;
    std::unique_ptr<Win32HiddenWindow> window_;
    std::unique_ptr<Win32TimerThread> timerThread_;
};
