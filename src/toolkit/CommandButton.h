#pragma once

#include "base/Event.h"
#include "toolkit/Control.h"

class CommandButton : public Control {
  public:
    using Control::Control;

    Event<> Click;

    void Press() {
        if (TakesActs()) Click.Raise();
    }
};
