#include "platform/win32/Win32Loop.h"

#include <windows.h>

#include <algorithm>
#include <utility>

#include "platform/win32/Win32HiddenWindow.h"
#include "platform/win32/Win32TimerThread.h"

namespace {

// Says that work waits; at most one is in the queue. The last number of the WM_APP range, so that
// RunPending can leave it out with two ranges.
constexpr UINT kWake = 0xBFFF;

// No number of a timer of the program.
constexpr MessageLoop::TimerId kGiveWayTimer = 0;
constexpr uint32_t kGiveWayMs = 1;

// A window that asks to be painted for ever, or posts to itself, must not hold a pass.
constexpr int kMessagesPerPass = 1000;

bool TakeMessage(MSG& message, UINT first, UINT last) {
    return PeekMessageW(&message, nullptr, first, last, PM_REMOVE) != 0;
}

bool TakeAnyButWake(MSG& message) {
    return TakeMessage(message, 0, kWake - 1) || TakeMessage(message, kWake + 1, 0xFFFF);
}

}  // namespace

Win32Loop::Win32Loop()
    : window_(std::make_unique<Win32HiddenWindow>(
          L"OrvoLoop", HWND_MESSAGE,
          [this](HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
              return static_cast<LRESULT>(Handle(window, message, wParam, lParam));
          })),
      timerThread_(std::make_unique<Win32TimerThread>([this](TimerId timer) { MarkDue(timer); })) {}

Win32Loop::~Win32Loop() {
    // What Quit left in the thread's queue is not meant for a later loop.
    MSG message{};
    TakeMessage(message, WM_QUIT, WM_QUIT);
}

void Win32Loop::Run() {
    RunUntil([] { return false; });
}

void Win32Loop::RunUntil(const std::function<bool()>& done) {
    while (!quit_ && !done()) {
        MSG message{};
        if (!TakeMessage(message, 0, 0)) {
            // Comes back for what another thread sends, too: that gives no message to take.
            MsgWaitForMultipleObjectsEx(0, nullptr, INFINITE, QS_ALLINPUT, MWMO_INPUTAVAILABLE);
        } else if (message.message == WM_QUIT) {
            Quit();
        } else {
            Dispatch(&message);
        }
    }
}

void Win32Loop::Dispatch(void* taken) const {
    const auto& message = *static_cast<const MSG*>(taken);
    const bool isKey = message.message >= WM_KEYFIRST && message.message <= WM_KEYLAST;
    if (isKey && TakesMessage && TakesMessage(taken)) return;
    TranslateMessage(&message);
    DispatchMessageW(&message);
}

void Win32Loop::RunPending() {
    uint64_t last = 0;
    {
        const std::lock_guard lock(mutex_);
        last = lastNumber_;
    }
    while (RunFirst(last)) {
    }
    // The wake message stays for a modal loop that one of these may open.
    MSG message{};
    bool quit = false;
    for (int i = 0; i < kMessagesPerPass && TakeAnyButWake(message); ++i) {
        if (message.message == WM_QUIT) {
            quit = true;
        } else {
            Dispatch(&message);
        }
    }
    if (quit) Quit();
}

void Win32Loop::Quit() {
    quit_ = true;
    // For the modal loops of the system.
    PostQuitMessage(0);
}

void Win32Loop::Post(std::function<void()> task) {
    const std::lock_guard lock(mutex_);
    tasks_.push_back({++lastNumber_, std::move(task)});
    Wake();
}

MessageLoop::TimerId Win32Loop::StartTimer(uint32_t intervalMs, std::function<void()> tick) {
    const TimerId id = ++lastTimer_;
    {
        const std::lock_guard lock(mutex_);
        timers_.push_back(std::make_shared<Timer>(Timer{id, std::move(tick)}));
    }
    timerThread_->Start(id, intervalMs);
    return id;
}

void Win32Loop::StopTimer(TimerId timer) {
    if (timer == kGiveWayTimer) return;
    timerThread_->Stop(timer);
    const std::lock_guard lock(mutex_);
    std::erase_if(timers_, [timer](const auto& known) { return known->id == timer; });
}

// On the timer thread.
void Win32Loop::MarkDue(TimerId timer) {
    const std::lock_guard lock(mutex_);
    if (timer == kGiveWayTimer) {
        wakeWaits_ = false;
        Wake();
        return;
    }
    for (const auto& known : timers_) {
        if (known->id != timer) continue;
        if (known->waiting == 0) known->waiting = ++lastNumber_;
        Wake();  // again for one that waits: the system may have refused the wake message
    }
}

void Win32Loop::Wake() {
    if (!wakeWaits_) wakeWaits_ = PostMessageW(window_->Get(), kWake, 0, 0) != 0;
}

intptr_t Win32Loop::Handle(void* window, uint32_t message, uintptr_t wParam, intptr_t lParam) {
    const HWND own = static_cast<HWND>(window);
    if (message != kWake) return DefWindowProcW(own, message, wParam, lParam);
    TakeWake();
    return 0;
}

void Win32Loop::TakeWake() {
    uint64_t last = 0;
    bool givesWay = false;
    {
        const std::lock_guard lock(mutex_);
        if (FirstNumber() > batchEnd_) {
            batchEnd_ = lastNumber_;
            givesWay = MustGiveWay();
        }
        // While it gives way it counts as woken, so that no one else wakes it.
        wakeWaits_ = givesWay;
        last = lastNumber_;
    }
    if (givesWay) {
        timerThread_->StartOnce(kGiveWayTimer, kGiveWayMs);
        return;
    }
    RunFirst(last);
    const std::lock_guard lock(mutex_);
    crowded_ = FirstNumber() != 0;
}

// Posted messages go before input and painting. When one batch of work follows upon another
// without a gap, a pause lets the waiting ones through: short, so that ticks keep their pace, and
// not by the system's timer messages, which are coarse and come last of all.
bool Win32Loop::MustGiveWay() {
    return std::exchange(crowded_, false) && HIWORD(GetQueueStatus(QS_INPUT | QS_PAINT)) != 0;
}

// Runs what came first if it came no later than `last`.
bool Win32Loop::RunFirst(uint64_t last) {
    std::shared_ptr<Timer> timer;
    std::function<void()> task;
    {
        const std::lock_guard lock(mutex_);
        const uint64_t first = FirstNumber();
        if (first == 0 || first > last) return false;
        if (!tasks_.empty() && tasks_.front().number == first) {
            task = std::move(tasks_.front().call);
            tasks_.pop_front();
        } else {
            timer = FirstTick();
            timer->waiting = 0;
        }
        // Before the call: it may open a modal loop.
        if (FirstNumber() != 0) Wake();
    }
    timer ? timer->tick() : task();
    return true;
}

std::shared_ptr<Win32Loop::Timer> Win32Loop::FirstTick() const {
    std::shared_ptr<Timer> first;
    for (const auto& timer : timers_) {
        if (timer->waiting != 0 && (!first || timer->waiting < first->waiting)) first = timer;
    }
    return first;
}

// Number of what came first, 0 when nothing waits.
uint64_t Win32Loop::FirstNumber() const {
    const auto tick = FirstTick();
    if (tasks_.empty()) return tick ? tick->waiting : 0;
    return tick ? std::min(tick->waiting, tasks_.front().number) : tasks_.front().number;
}
