#pragma once

#include <cstdint>
#include <deque>
#include <functional>

// What the user has done and couldn't be carried out, as the simulator didn't give a value that it
// rests on. It is tried again, one act after each tick, in the order in which it was done.
class PendingActs {
  public:
    using Act = std::function<bool()>;
    // How long an act is of use: built-in behaviour as long as bindings and mode are the same, a
    // press as long as the session, what lets something go until it is done.
    enum class Lasts : uint8_t { Binding, Session, Program };

    // Does it now, or when all that waits is done. `act` gives false, and has done nothing, when it
    // can't be carried out yet.
    void Do(const Act& act, Lasts lasts = Lasts::Binding) {
        if (!acts_.empty() || !act()) acts_.push_back({act, lasts});
    }
    bool Empty() const { return acts_.empty(); }

    // False when the first one can't be done yet, or there is none.
    bool DoFirst() {
        if (acts_.empty() || !acts_.front().act()) return false;
        acts_.pop_front();
        return true;
    }
    // Bindings or mode have changed, or the session is lost: drops the acts that last as long.
    void Drop(Lasts ended) {
        std::erase_if(acts_, [ended](const Waiting& each) { return each.lasts <= ended; });
    }

  private:
    struct Waiting {
        Act act;
        Lasts lasts;
    };

    std::deque<Waiting> acts_;
};
