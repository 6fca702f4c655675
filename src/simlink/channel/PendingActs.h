#pragma once

#include <deque>
#include <functional>

// What the user has done and couldn't be carried out, as the simulator didn't give a value that it
// rests on. It is tried again, one act after each tick, in the order in which it was done.
class PendingActs {
  public:
    using Act = std::function<bool()>;
    // An act of a lost session is of no use in the next one, unless it is to let something go.
    enum class Lasts : bool { Session, Program };

    // Does it now, or when all that waits is done. `act` gives false, and has done nothing, when it
    // can't be carried out yet.
    void Do(const Act& act, Lasts lasts = Lasts::Session) {
        if (!acts_.empty() || !act()) acts_.push_back({act, lasts});
    }
    bool Empty() const { return acts_.empty(); }

    // False when the first one can't be done yet, or there is none.
    bool DoFirst() {
        if (acts_.empty() || !acts_.front().act()) return false;
        acts_.pop_front();
        return true;
    }
    void SessionLost() {
        std::erase_if(acts_, [](const Waiting& each) { return each.lasts == Lasts::Session; });
    }

  private:
    struct Waiting {
        Act act;
        Lasts lasts;
    };

    std::deque<Waiting> acts_;
};
