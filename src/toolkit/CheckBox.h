#pragma once

#include "base/Event.h"
#include "toolkit/Control.h"

// A box that is ticked or not.
class CheckBox : public Control {
  public:
    using Control::Control;

    Event<> Click;  // the value has changed

    bool Value() const { return value_; }
    void SetValue(bool value) {
        if (value == value_) return;
        value_ = value;
        NotifyChanged();
        Click.Raise();
    }

    // The user ticks it, or takes the tick away.
    void Press() {
        if (TakesActs()) SetValue(!value_);
    }

  private:
    bool value_ = false;
};
