#pragma once

#include <cstdint>
#include <functional>

// The one thread that all program code runs on. What is posted and what timers call runs here, in
// order, also while a modal loop of the system (a message box, a menu) is open.
class MessageLoop {
  public:
    using TimerId = uint32_t;  // never 0

    virtual ~MessageLoop() = default;

    // Runs until Quit. Returns at once if Quit was called before.
    virtual void Run() = 0;

    // A single pass: handles what waits at this moment, then returns. May be called from anything
    // that the loop runs.
    virtual void RunPending() = 0;

    // A modal loop: runs until `done` gives true, asked after each message, or until Quit.
    virtual void RunUntil(const std::function<bool()>& done) = 0;

    // Calls `task` later on the loop's thread. The one operation that any thread may call. Tasks
    // run in the order of posting; those still waiting when the loop ends are dropped.
    virtual void Post(std::function<void()> task) = 0;

    // Calls `tick` every `intervalMs` (at least 1) milliseconds, the first time after one interval.
    // A tick that could not be taken in time is not made up for: never do two of one timer wait.
    virtual TimerId StartTimer(uint32_t intervalMs, std::function<void()> tick) = 0;

    // No tick of the timer comes after this, not even one that was waiting. Unknown ids are
    // ignored.
    virtual void StopTimer(TimerId timer) = 0;

    // Ends Run and every RunUntil.
    virtual void Quit() = 0;
};
