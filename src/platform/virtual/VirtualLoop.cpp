#include "platform/virtual/VirtualLoop.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

void VirtualLoop::Run() {
    while (!quit_) RunNextEver();
}

void VirtualLoop::RunUntil(const std::function<bool()>& done) {
    while (!quit_ && !done()) RunNextEver();
}

void VirtualLoop::RunPending() {
    const uint64_t now = clock_.Elapsed();
    const uint64_t firstLater = nextSerial_;
    // What comes new gets a serial beyond the limit, and so does a timer with each tick.
    while (const auto next = Next(now, firstLater)) RunAt(*next);
}

void VirtualLoop::Post(std::function<void()> task) { After(0, std::move(task)); }

void VirtualLoop::After(uint32_t milliseconds, std::function<void()> task) {
    const Place place{clock_.Elapsed() + milliseconds, nextSerial_++};
    const auto behind =
        std::upper_bound(tasks_.begin(), tasks_.end(), place,
                         [](const Place& left, const Task& right) { return left < right.place; });
    tasks_.insert(behind, Task{place, std::move(task)});
}

MessageLoop::TimerId VirtualLoop::StartTimer(uint32_t intervalMs, std::function<void()> tick) {
    const uint32_t interval = std::max(intervalMs, 1u);
    const TimerId id = nextTimer_++;
    timers_.push_back({{clock_.Elapsed() + interval, nextSerial_++},
                       id,
                       interval,
                       std::make_shared<const std::function<void()>>(std::move(tick))});
    return id;
}

void VirtualLoop::StopTimer(TimerId timer) {
    std::erase_if(timers_, [timer](const Timer& each) { return each.id == timer; });
}

void VirtualLoop::Advance(uint32_t milliseconds) {
    const uint64_t end = clock_.Elapsed() + milliseconds;
    while (const auto next = Next(end)) {
        clock_.MoveTo(next->due);
        RunAt(*next);
    }
    clock_.MoveTo(end);
}

size_t VirtualLoop::WaitingCount() const {
    const auto due = [this](const auto& each) { return each.place.due <= clock_.Elapsed(); };
    return static_cast<size_t>(std::count_if(tasks_.begin(), tasks_.end(), due) +
                               std::count_if(timers_.begin(), timers_.end(), due));
}

std::optional<VirtualLoop::Place> VirtualLoop::Next(uint64_t lastDue, uint64_t endSerial) const {
    const auto counts = [&](const auto& each) {
        return each.place.due <= lastDue && each.place.serial < endSerial;
    };
    std::optional<Place> next;
    const auto task = std::find_if(tasks_.begin(), tasks_.end(), counts);
    if (task != tasks_.end()) next = task->place;
    for (const Timer& timer : timers_) {
        if (counts(timer) && (!next || timer.place < *next)) next = timer.place;
    }
    return next;
}

void VirtualLoop::RunAt(const Place& place) {
    for (Timer& timer : timers_) {
        if (timer.place == place) return RunTick(timer);
    }
    const auto found = std::find_if(tasks_.begin(), tasks_.end(),
                                    [&](const Task& task) { return task.place == place; });
    const std::function<void()> run = std::move(found->run);
    tasks_.erase(found);
    run();
}

void VirtualLoop::RunTick(Timer& timer) {
    // Set again before the call, which may take long, run the loop itself or stop the timer. The
    // rhythm is kept; what was missed is not made up for.
    const uint64_t late = clock_.Elapsed() - timer.place.due;
    timer.place.due += (late / timer.interval + 1) * timer.interval;
    timer.place.serial = nextSerial_++;
    const auto tick = timer.tick;
    (*tick)();
}

void VirtualLoop::RunNextEver() {
    const auto next = Next();
    if (!next) throw std::logic_error("the loop waits, but nothing can ever happen");
    clock_.MoveTo(next->due);
    RunAt(*next);
}
