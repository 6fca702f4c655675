#pragma once

#include <compare>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <functional>
#include <limits>
#include <memory>
#include <optional>
#include <vector>

#include "platform/MessageLoop.h"
#include "platform/virtual/VirtualClock.h"

// A message loop over virtual time. What is posted and what timers raise runs in the order of the
// moments it became due, those of one moment in the order of posting. One thread: another one may
// post only while the loop's own waits for it.
class VirtualLoop : public MessageLoop {
  public:
    explicit VirtualLoop(VirtualClock& clock) : clock_(clock) {}

    // Both jump to what is due next when nothing waits. Where nothing can ever happen any more they
    // throw std::logic_error instead of hanging.
    void Run() override;
    void RunUntil(const std::function<bool()>& done) override;

    void RunPending() override;
    void Post(std::function<void()> task) override;
    TimerId StartTimer(uint32_t intervalMs, std::function<void()> tick) override;
    void StopTimer(TimerId timer) override;
    void Quit() override { quit_ = true; }

    // Moves the time on, running what falls due on the way, each at its moment. What a handler
    // pauses goes on top: what falls due beyond the planned end is left waiting.
    void Advance(uint32_t milliseconds);

    // Posts `task` in `milliseconds` from now.
    void After(uint32_t milliseconds, std::function<void()> task);

    bool QuitWasCalled() const { return quit_; }
    size_t TimerCount() const { return timers_.size(); }
    // Tasks and ticks that are due by now and haven't run.
    size_t WaitingCount() const;

  private:
    struct Place {
        uint64_t due = 0;
        uint64_t serial = 0;
        auto operator<=>(const Place&) const = default;
    };
    struct Task {
        Place place;
        std::function<void()> run;
    };
    struct Timer {
        Place place;
        TimerId id;
        uint32_t interval;
        std::shared_ptr<const std::function<void()>> tick;  // its own copy outlives StopTimer
    };

    static constexpr uint64_t kNoLimit = std::numeric_limits<uint64_t>::max();

    // The first of what is due by `lastDue` and was posted before `endSerial`.
    std::optional<Place> Next(uint64_t lastDue = kNoLimit, uint64_t endSerial = kNoLimit) const;
    void RunAt(const Place& place);
    void RunTick(Timer& timer);
    void RunNextEver();

    VirtualClock& clock_;
    std::deque<Task> tasks_;  // in order of place
    std::vector<Timer> timers_;
    uint64_t nextSerial_ = 0;
    TimerId nextTimer_ = 1;
    bool quit_ = false;
};
