#pragma once

#include <algorithm>

#include "base/Event.h"
#include "toolkit/Control.h"

// A handle on a scale, from Min at the left to Max at the right.
class Slider : public Control {
  public:
    using Control::Control;

    Property<int32_t, Control> SmallChange{*this, 1};  // of an arrow key
    Property<int32_t, Control> LargeChange{*this, 5};  // of the page keys and of a click beside it
    Property<int32_t, Control> TickFrequency{*this, 1};

    Event<> Change;  // the value is another one

    int32_t Min() const { return min_; }
    int32_t Max() const { return max_; }
    // Silent; a value outside becomes the nearest end.
    void SetRange(int32_t min, int32_t max) {
        min_ = min;
        max_ = max;
        value_ = std::clamp(value_, min_, max_);
        NotifyChanged();
    }

    int32_t Value() const { return value_; }
    // The nearest end for a value outside.
    void SetValue(int32_t value) {
        value = std::clamp(value, min_, max_);
        if (value == value_) return;
        value_ = value;
        NotifyChanged();
        Change.Raise();
    }

    // The user puts the handle there.
    void Drag(int32_t value) {
        if (TakesActs()) SetValue(value);
    }

  private:
    int32_t min_ = 0;
    int32_t max_ = 10;
    int32_t value_ = 0;
};
