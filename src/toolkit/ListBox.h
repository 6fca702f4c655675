#pragma once

#include "toolkit/ListControl.h"

// A list of which several entries are seen.
class ListBox : public ListControl {
  public:
    using ListControl::ListControl;

    Event<> DblClick;

    // The selected entry, empty without one.
    std::string Text() const { return SelectedItem(); }

    // A double click on an entry, which has been selected by its first click. In a form without a
    // default button Enter does the same.
    void DoubleClick() {
        if (TakesActs() && ListIndex() >= 0) DblClick.Raise();
    }
};
