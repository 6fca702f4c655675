#include "platform/win32/Win32Loop.h"

#include <windows.h>

// Counts on windows.h.
#include <mmsystem.h>

#include <utility>

#include "platform/win32/Win32HiddenWindow.h"
#include "platform/win32/Win32Library.h"
#include "platform/win32/Win32TimerThread.h"

using Moment = Win32LoopWork::Moment;
using SteadyClock = Win32LoopWork::SteadyClock;
using std::chrono::milliseconds;

namespace {

// Says that work waits; at most one is in the queue. The last number of the WM_APP range, so that
// RunPending can leave it out with two ranges.
constexpr UINT kWake = 0xBFFF;

constexpr milliseconds kGiveWay{1};
// So much a tick may be late before a loop of the system is taken to have the messages.
constexpr milliseconds kGrace{2};

// A window that asks to be painted for ever, or posts to itself, must not hold a pass.
constexpr int kMessagesPerPass = 1000;
// Between two batches of work that follow upon each other without a gap.
constexpr int kMessagesPerTurn = 8;

// Length of the system's own clock tick, which an ordinary timer can't go below by itself.
constexpr milliseconds kSystemTick{16};

bool Peek(MSG& message, UINT first, UINT last) {
    return PeekMessageW(&message, nullptr, first, last, PM_REMOVE) != 0;
}

bool PeekAnyButWake(MSG& message) {
    return Peek(message, 0, kWake - 1) || Peek(message, kWake + 1, 0xFFFF);
}

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

struct Win32Loop::Waits {
    Win32WaitableTimer timer;
    Win32Handle posted{CreateEventW(nullptr, FALSE, FALSE, nullptr)};
};

// Lends the messages to the system, for as long as this lives.
class Win32Loop::Lent {
  public:
    explicit Lent(Win32Loop& loop) : loop_(loop), own_(loop.own_) { loop.GiveToSystem(); }
    Lent(const Lent&) = delete;
    Lent& operator=(const Lent&) = delete;
    ~Lent() { loop_.own_ = own_; }

  private:
    Win32Loop& loop_;
    const bool own_;
};

Win32Loop::Win32Loop()
    : thread_(GetCurrentThreadId()),
      waits_(std::make_unique<Waits>()),
      window_(std::make_unique<Win32HiddenWindow>(
          L"OrvoLoop", HWND_MESSAGE,
          [this](HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
              return static_cast<LRESULT>(Handle(window, message, wParam, lParam));
          })),
      timerThread_(std::make_unique<Win32TimerThread>([this] { return KeepTime(); })) {
    DeclineThrottling();
}

Win32Loop::~Win32Loop() {
    timerThread_.reset();
    if (finePeriod_) timeEndPeriod(1);
    // What Quit left in the thread's queue is not meant for a later loop.
    MSG message{};
    Peek(message, WM_QUIT, WM_QUIT);
}

void Win32Loop::Run() {
    RunUntil([] { return false; });
}

void Win32Loop::RunUntil(const std::function<bool()>& done) {
    const bool outer = own_;
    while (!quit_ && !done()) {
        own_ = true;
        Turn();
    }
    own_ = outer;
    if (!outer) GiveToSystem();
}

// One tick, task or message, or one wait. A batch of what waits at one moment is followed by
// messages where there was no pause before it: so neither holds up the other.
void Win32Loop::Turn() {
    work_.RaiseDue(SteadyClock::now());
    if (work_.RunFirst(batchEnd_)) return;
    if (messagesLeft_ > 0) {
        --messagesLeft_;
        if (TakeMessage()) return;
        messagesLeft_ = 0;
    }
    signalled_ = false;
    if (work_.FirstNumber() == 0) return AwaitWork();
    batchEnd_ = work_.LastNumber();
    if (!std::exchange(waited_, false)) messagesLeft_ = kMessagesPerTurn;
}

void Win32Loop::AwaitWork() {
    ArmTimer();
    const HANDLE handles[] = {waits_->timer.Get(), waits_->posted.Get()};
    // Comes back for what another thread sends, too: that gives no message to take.
    const DWORD what =
        MsgWaitForMultipleObjectsEx(2, handles, INFINITE, QS_ALLINPUT, MWMO_INPUTAVAILABLE);
    if (what == WAIT_OBJECT_0 && armed_) armed_->moment += armed_->interval;
    if (what == WAIT_OBJECT_0 + 2) messagesLeft_ = kMessagesPerTurn;
    waited_ = true;
}

// As long as one timer keeps its rhythm, nothing is to be done.
void Win32Loop::ArmTimer() {
    const auto next = work_.NextDue();
    if (next && (!armed_ || armed_->moment != next->moment)) {
        waits_->timer.Set(next->moment, next->interval);
    } else if (!next && armed_) {
        waits_->timer.Cancel();
    }
    armed_ = next;
}

// False when there is none.
bool Win32Loop::TakeMessage() {
    const Lent lent(*this);
    MSG message{};
    if (!Peek(message, 0, 0)) return false;
    if (message.message == WM_QUIT) {
        Quit();
    } else {
        Dispatch(&message);
    }
    return true;
}

void Win32Loop::Dispatch(void* taken) const {
    const auto& message = *static_cast<const MSG*>(taken);
    const bool isKey = message.message >= WM_KEYFIRST && message.message <= WM_KEYLAST;
    if (isKey && TakesMessage && TakesMessage(taken)) return;
    TranslateMessage(&message);
    DispatchMessageW(&message);
}

void Win32Loop::RunPending() {
    work_.RaiseDue(SteadyClock::now());
    const uint64_t last = work_.LastNumber();
    while (work_.RunFirst(last, [this] { Wake(); })) {
    }
    // The wake message stays for a modal loop that one of these may open.
    const Lent lent(*this);
    MSG message{};
    bool quit = false;
    for (int i = 0; i < kMessagesPerPass && PeekAnyButWake(message); ++i) {
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
    work_.Post(std::move(task));
    Wake();
}

MessageLoop::TimerId Win32Loop::StartTimer(uint32_t intervalMs, std::function<void()> tick) {
    const TimerId id = ++lastTimer_;
    work_.StartTimer(id, intervalMs, std::move(tick));
    ChoosePeriod();
    if (!own_) GiveToSystem();
    return id;
}

void Win32Loop::StopTimer(TimerId timer) {
    work_.StopTimer(timer);
    ChoosePeriod();
}

void Win32Loop::GiveToSystem() {
    own_ = false;
    if (work_.FirstNumber() != 0) {
        timerThread_->WakeAt(SteadyClock::now() + kGrace);
    } else if (const auto next = work_.NextDue()) {
        timerThread_->WakeAt(next->moment + kGrace);
    }
}

// On the timer thread.
std::optional<Moment> Win32Loop::KeepTime() {
    if (givesWay_.exchange(false)) wakeWaits_ = false;
    if (own_) return std::nullopt;
    work_.RaiseDue(SteadyClock::now());
    Wake();  // also for what waits already: the system may have refused the wake message
    const auto next = work_.NextDue();
    return next ? std::optional(next->moment) : std::nullopt;
}

// Nothing waits when this is called in vain: the loop looks before it waits, and GiveToSystem tells
// the timer thread.
void Win32Loop::Wake() {
    if (work_.FirstNumber() == 0) return;
    if (!own_) {
        if (!wakeWaits_.exchange(true) && !PostMessageW(window_->Get(), kWake, 0, 0)) {
            wakeWaits_ = false;
        }
    } else if (GetCurrentThreadId() != thread_ && !signalled_.exchange(true)) {
        SetEvent(waits_->posted.Get());
    }
}

intptr_t Win32Loop::Handle(void* window, uint32_t message, uintptr_t wParam, intptr_t lParam) {
    const HWND own = static_cast<HWND>(window);
    if (message != kWake) return DefWindowProcW(own, message, wParam, lParam);
    TakeWake();
    return 0;
}

void Win32Loop::TakeWake() {
    if (work_.FirstNumber() > wokenEnd_) {
        wokenEnd_ = work_.LastNumber();
        if (MustGiveWay()) {
            // Counts as woken meanwhile, so that no one else wakes it.
            givesWay_ = true;
            timerThread_->WakeAt(SteadyClock::now() + kGiveWay);
            return;
        }
    }
    wakeWaits_ = false;
    // The next message before the call: it may open a modal loop.
    work_.RunFirst(work_.LastNumber(), [this] { Wake(); });
    crowded_ = work_.FirstNumber() != 0;
}

// Posted messages go before input and painting. When one batch of work follows upon another
// without a gap, a pause lets the waiting ones through: short, so that ticks keep their pace, and
// not by the system's timer messages, which are coarse and come last of all.
bool Win32Loop::MustGiveWay() {
    return std::exchange(crowded_, false) && HIWORD(GetQueueStatus(QS_INPUT | QS_PAINT)) != 0;
}

void Win32Loop::ChoosePeriod() {
    const bool fine = !waits_->timer.IsFine() && work_.HasTimerBelow(kSystemTick);
    if (fine == finePeriod_) return;
    finePeriod_ = fine;
    if (fine) {
        timeBeginPeriod(1);
    } else {
        timeEndPeriod(1);
    }
}
