#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <utility>

// What the user has done and couldn't be carried out, as the simulator didn't give a value that it
// rests on, or that takes its time. It is tried again after each tick, as much as fits into it, in
// the order in which it was done.
class PendingActs {
  public:
    using Act = std::function<bool()>;
    // How long an act is of use: built-in behaviour as long as bindings and mode are the same, a
    // press as long as the session, what lets something go until it is done.
    enum class Lasts : uint8_t { Binding, Session, Program };

    // Does it now, or when all that waits is done. `act` gives false when it is to be called again:
    // it can't be carried out yet, or has more to do.
    template <class NewAct>
    void Do(NewAct act, Lasts lasts = Lasts::Binding) {
        if (!acts_.empty() || !act()) acts_.push_back({std::move(act), lasts});
    }
    // What has to follow an act that is being done: comes before all that waits.
    void DoNext(Act act, Lasts lasts) { acts_.push_front({std::move(act), lasts}); }
    bool Empty() const { return acts_.empty(); }

    // False when the first one isn't done yet, or there is none.
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
