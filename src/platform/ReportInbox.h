#pragma once

#include <array>
#include <chrono>
#include <cstdint>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>

#include "platform/MessageLoop.h"

// Input reports of one panel on their way from its reader to the loop. They are taken in their
// order, a few a turn of the loop: so a flood of them leaves room for ticks and for other panels.
class ReportInbox : public std::enable_shared_from_this<ReportInbox> {
  public:
    struct Report {
        std::array<uint8_t, 4> bytes;
        uint32_t clock;  // at which the reader had it
    };

    using SteadyClock = std::chrono::steady_clock;
    static constexpr SteadyClock::duration kNoLimit = std::chrono::hours(1);

    // `take` is called on the loop's thread. No report is begun after so much of a turn: one may
    // cost exchanges with the simulator. To be made by make_shared.
    ReportInbox(MessageLoop& loop, std::function<void(const Report&)> take,
                SteadyClock::duration turn)
        : loop_(loop), take_(std::move(take)), turn_(turn) {}

    // Any thread may call it. So many wait at most that no pulse is lost in minutes; beyond that
    // the latest takes the place of the one before, so that the panel's state stays true.
    void Put(const Report& report);

    // Nothing is taken after this, and what waits is dropped. On the loop's thread.
    void Close();

  private:
    void CallTurn();
    void TakeTurn();
    bool TakeNext();

    MessageLoop& loop_;
    std::function<void(const Report&)> take_;
    const SteadyClock::duration turn_;
    std::mutex mutex_;
    std::deque<Report> waiting_;
    bool called_ = false;  // a turn of the loop is to come
    bool closed_ = false;
};
