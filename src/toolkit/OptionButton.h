#pragma once

#include "base/Event.h"
#include "toolkit/Control.h"

// One of the options among which the user chooses. Those of one parent are a group: at most one of
// them is chosen.
class OptionButton : public Control {
  public:
    using Control::Control;

    Event<> Click;  // it wasn't the chosen one, and is now

    bool Value() const { return value_; }
    // Choosing one takes the others of its group back, silently. False chooses none.
    void SetValue(bool value);

    void Press() {
        if (TakesActs()) SetValue(true);
    }

  private:
    void Set(bool value);

    bool value_ = false;
};
