#include "platform/win32/Win32LoopWork.h"

#include <algorithm>
#include <utility>

void Win32LoopWork::Post(std::function<void()> task) {
    const std::lock_guard lock(mutex_);
    tasks_.push_back({++lastNumber_, std::move(task)});
}

void Win32LoopWork::StartTimer(TimerId id, uint32_t intervalMs, std::function<void()> tick) {
    const std::chrono::milliseconds interval(std::max(intervalMs, 1u));
    const std::lock_guard lock(mutex_);
    timers_.push_back(std::make_shared<Timer>(
        Timer{id, interval, SteadyClock::now() + interval, std::move(tick)}));
}

void Win32LoopWork::StopTimer(TimerId id) {
    const std::lock_guard lock(mutex_);
    std::erase_if(timers_, [id](const auto& timer) { return timer->id == id; });
}

bool Win32LoopWork::HasTimerBelow(std::chrono::milliseconds interval) const {
    const std::lock_guard lock(mutex_);
    return std::ranges::any_of(timers_,
                               [&](const auto& timer) { return timer->interval < interval; });
}

void Win32LoopWork::RaiseDue(Moment now) {
    const std::lock_guard lock(mutex_);
    for (const auto& timer : timers_) {
        if (timer->due > now) continue;
        if (timer->waiting == 0) timer->waiting = ++lastNumber_;
        // To the first due time that is still ahead: keeps the rhythm, makes up for nothing.
        timer->due += timer->interval * ((now - timer->due) / timer->interval + 1);
    }
}

std::optional<Win32LoopWork::Due> Win32LoopWork::NextDue() const {
    const std::lock_guard lock(mutex_);
    std::optional<Due> next;
    for (const auto& timer : timers_) {
        if (!next || timer->due < next->moment) next = {timer->due, timer->interval};
    }
    return next;
}

uint64_t Win32LoopWork::LastNumber() const {
    const std::lock_guard lock(mutex_);
    return lastNumber_;
}

uint64_t Win32LoopWork::FirstNumber() const {
    const std::lock_guard lock(mutex_);
    return First();
}

bool Win32LoopWork::RunFirst(uint64_t last, const std::function<void()>& before) {
    std::shared_ptr<Timer> timer;
    std::function<void()> task;
    {
        const std::lock_guard lock(mutex_);
        const uint64_t first = First();
        if (first == 0 || first > last) return false;
        if (!tasks_.empty() && tasks_.front().number == first) {
            task = std::move(tasks_.front().call);
            tasks_.pop_front();
        } else {
            timer = *FirstTick();
            timer->waiting = 0;
        }
    }
    if (before) before();
    timer ? timer->tick() : task();
    return true;
}

const std::shared_ptr<Win32LoopWork::Timer>* Win32LoopWork::FirstTick() const {
    const std::shared_ptr<Timer>* first = nullptr;
    for (const auto& timer : timers_) {
        if (timer->waiting != 0 && (!first || timer->waiting < (*first)->waiting)) first = &timer;
    }
    return first;
}

uint64_t Win32LoopWork::First() const {
    const auto* tick = FirstTick();
    if (tasks_.empty()) return tick ? (*tick)->waiting : 0;
    return tick ? std::min((*tick)->waiting, tasks_.front().number) : tasks_.front().number;
}
