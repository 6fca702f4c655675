#pragma once

#include <vector>

#include "toolkit/Control.h"

// A control that holds others. Its children are stacked, and reached by the keyboard, in the order
// in which they came: the first one is in front.
class Container : public Control {
  public:
    using Control::Control;

    const std::vector<Control*>& Children() const { return children_; }

    // Puts a child before all others in the order.
    void BringToFront(Control& child);

    void Realize(UiBackend& ui) override;

  protected:
    // Children are greyed with it.
    void EnabledChanged() override;

  private:
    friend class Control;
    void Attach(Control& child) { children_.push_back(&child); }
    void Detach(Control& child) { std::erase(children_, &child); }

    std::vector<Control*> children_;
};
