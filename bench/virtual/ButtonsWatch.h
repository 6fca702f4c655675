#pragma once

#include <array>
#include <deque>
#include <string>

#include "bench/virtual/VirtualCockpit.h"

// Sees that no virtual button stays down in the simulator when what held it has left. Judges by
// what the device objects tell of the controls, and what was written to the simulator.
class ButtonsWatch {
  public:
    // Of the panels of a program that has been started.
    explicit ButtonsWatch(VirtualCockpit& cockpit);

    // For each tick: a button that is down though no control that may hold one stands where it
    // does, for longer than a press takes. Empty when there is none, and while the program couldn't
    // let go.
    std::string LeftDown();
    // Whether nothing is down but what is held at this moment.
    bool AllHeld() const;

  private:
    // A control that holds a button down while it stands where it is.
    using Holder = std::optional<ActionRecord>;
    struct Button {
        uint64_t since = 0;  // the tick at which it went down, or last had a reason to be down
        bool down = false;
    };

    void Follow(PanelUnit& unit);
    void FollowRadio(PanelUnit& unit);
    void FollowMulti(PanelUnit& unit);
    void FollowSwitch(PanelUnit& unit);
    Holder& AddHolder() { return holders_.emplace_back(); }
    void TakeWrite(uint32_t offset, std::span<const uint8_t> bytes);
    bool IsHeld(size_t button) const;

    VirtualCockpit& cockpit_;
    ScopedConnection writing_;
    std::deque<ScopedConnection> follows_;
    std::deque<Holder> holders_;
    std::deque<int32_t> positions_;  // of the Radio Panels' selectors
    std::array<Button, 9UL * 32> buttons_{};
    uint64_t ticks_ = 0;
};
