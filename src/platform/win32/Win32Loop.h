#pragma once

#include <atomic>
#include <functional>
#include <memory>
#include <optional>

#include "platform/MessageLoop.h"
#include "platform/win32/Win32LoopWork.h"

class Win32HiddenWindow;
class Win32TimerThread;
class Win32WaitableTimer;

// The loop of the thread that makes it. While it runs itself it waits for timers, tasks and
// messages at once. While a loop of the system has the messages, as those of boxes and menus do,
// tasks and ticks come as messages to a window of its own, and a thread keeps the time.
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

    // A task or tick is about to open something with a loop of the system's. While messages are
    // being handled there is no need to say so.
    void GiveToSystem();

    // Asked for each message (MSG) of the keyboard, before it is translated and dispatched: whether
    // it has been dealt with.
    std::function<bool(void* message)> TakesMessage;

  private:
    class Lent;

    void Turn();
    void AwaitWork();
    void ArmTimer();
    bool TakeMessage();
    void Dispatch(void* taken) const;

    intptr_t Handle(void* window, uint32_t message, uintptr_t wParam, intptr_t lParam);
    void TakeWake();
    bool MustGiveWay();
    std::optional<Win32LoopWork::Moment> KeepTime();
    void Wake();
    void ChoosePeriod();

    const uint32_t thread_;
    Win32LoopWork work_;
    TimerId lastTimer_ = 0;
    std::atomic<bool> quit_ = false;
    std::atomic<bool> own_ = false;  // the messages are this loop's, not the system's

    // Of this loop's own turns.
    uint64_t batchEnd_ = 0;
    int messagesLeft_ = 0;
    bool waited_ = false;
    std::optional<Win32LoopWork::Due> armed_;  // what the timer signals next
    std::atomic<bool> signalled_ = false;

    // Of the turns that come as messages.
    uint64_t wokenEnd_ = 0;
    bool crowded_ = false;
    std::atomic<bool> wakeWaits_ = false;
    std::atomic<bool> givesWay_ = false;

    bool finePeriod_ = false;
    struct Waits;
    std::unique_ptr<Waits> waits_;
    std::unique_ptr<Win32HiddenWindow> window_;
    std::unique_ptr<Win32TimerThread> timerThread_;
};
