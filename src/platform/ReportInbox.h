#pragma once

#include <array>
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

    // `take` is called on the loop's thread. To be made by make_shared.
    ReportInbox(MessageLoop& loop, std::function<void(const Report&)> take)
        : loop_(loop), take_(std::move(take)) {}

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
    std::mutex mutex_;
    std::deque<Report> waiting_;
    bool called_ = false;  // a turn of the loop is to come
    bool closed_ = false;
};
