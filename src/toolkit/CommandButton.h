#pragma once

#include "base/Event.h"
#include "toolkit/Control.h"

class CommandButton : public Control {
  public:
    using Control::Control;

    Property<std::string, Control> Caption{*this, {}};

    Event<> Click;

    // What pressing it does. A button that isn't enabled can't be pressed.
    void Press();

    void Accept(ControlVisitor& visitor) override;
};
