#pragma once

#include <cstdint>

#include "simlink/channel/cSession.h"

// Whether the values that a logic keeps from the ticks are those of the simulator: from the first
// tick after a link, a binding or a change of mode. Before it they may be another aircraft's, or
// none at all, and nothing is written that rests on them.
class TickValues {
  public:
    explicit TickValues(const cSession& session) : session_(session) {}

    // A tick has just been read, and the values are taken from it.
    void Take() {
        if (session_.Fsuipc.AllRead()) link_ = session_.Link;
    }
    // The bindings or the mode have changed: what was read before may mean something else.
    void Forget() { link_ = 0; }
    bool AreRead() const { return link_ != 0 && link_ == session_.Link; }

  private:
    const cSession& session_;
    uint32_t link_ = 0;  // of the session in which they were read
};
