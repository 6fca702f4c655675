#pragma once

#include <optional>

#include "base/Event.h"
#include "simlink/actions/ActionRecord.h"
#include "simlink/actions/EventOutput.h"

// The virtual button that a control of a panel holds down while it stays where it is. It is let go
// when the control leaves, whatever bindings, mode and session say by then; without a session, in
// the next one.
class HeldButton {
  public:
    // `output` must outlive it.
    explicit HeldButton(EventOutput& output)
        : output_(output), ending_(output.Ending.Connect([this] { LetGo(); })) {}
    HeldButton(const HeldButton&) = delete;
    HeldButton& operator=(const HeldButton&) = delete;

    // The control has reached a place with this record: presses its button, if it is a VButton
    // record, and lets go of the one that it held. `left` is the record of the place before by the
    // present bindings, whose button is released too where both are VButton records.
    void MoveTo(const ActionRecord& reached, const ActionRecord& left = {});
    // The control has left. The button of `off`, if it is a VButton record, is released in any
    // case.
    void LetGo(const ActionRecord& off = {});

  private:
    void Release(const ActionRecord& record) { output_.SetVirtualButton(record, false, false); }

    EventOutput& output_;
    std::optional<ActionRecord> held_;
    ScopedConnection ending_;
};
