#pragma once

#include <vector>

#include "toolkit/Control.h"

// A control that holds others. Its children are drawn and reached by the keyboard in the order in
// which they came.
class Container : public Control {
  public:
    using Control::Control;

    const std::vector<Control*>& Children() const { return children_; }

    // Puts a child behind all others in the order, and so in front of them on the screen.
    void BringToFront(Control& child);

    void Accept(ControlVisitor& visitor) override;
    void Realize(UiBackend& ui) override;

  private:
    friend class Control;
    void Attach(Control& child) { children_.push_back(&child); }
    void Detach(Control& child) { std::erase(children_, &child); }

    std::vector<Control*> children_;
};
