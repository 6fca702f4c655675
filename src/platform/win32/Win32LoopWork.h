#pragma once

#include <chrono>
#include <cstdint>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <vector>

#include "platform/MessageLoop.h"

// What waits for the loop: posted tasks and ticks of timers, numbered in one row in the order of
// coming. Any thread may call any of it; what waits runs on the thread that calls RunFirst.
class Win32LoopWork {
  public:
    using SteadyClock = std::chrono::steady_clock;
    using Moment = SteadyClock::time_point;
    using TimerId = MessageLoop::TimerId;

    void Post(std::function<void()> task);

    void StartTimer(TimerId id, uint32_t intervalMs, std::function<void()> tick);
    void StopTimer(TimerId id);
    // Whether a timer is quicker than this.
    bool HasTimerBelow(std::chrono::milliseconds interval) const;

    // The ticks of the timers that are due by now wait from here on, one of each at most.
    void RaiseDue(Moment now);
    // Of the timer that is due next; nothing while there is none.
    struct Due {
        Moment moment;
        std::chrono::milliseconds interval;
    };
    std::optional<Due> NextDue() const;

    // Number of what came last, and of the first that waits, 0 when nothing does.
    uint64_t LastNumber() const;
    uint64_t FirstNumber() const;

    // Runs what came first if it came no later than `last`. `before` is called right before it.
    bool RunFirst(uint64_t last, const std::function<void()>& before = {});

  private:
    struct Task {
        uint64_t number;
        std::function<void()> call;
    };
    struct Timer {
        TimerId id;
        std::chrono::milliseconds interval;
        Moment due;
        std::function<void()> tick;
        uint64_t waiting = 0;  // number of the tick that waits, 0 for none
    };

    // These need the lock.
    const std::shared_ptr<Timer>* FirstTick() const;
    uint64_t First() const;

    mutable std::mutex mutex_;
    std::deque<Task> tasks_;
    std::vector<std::shared_ptr<Timer>> timers_;
    uint64_t lastNumber_ = 0;
};
