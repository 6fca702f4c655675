#pragma once

#include <string>

#include "base/Event.h"
#include "toolkit/Control.h"

// A line of text that the user writes.
class TextBox : public Control {
  public:
    using Control::Control;

    Event<> Change;     // the text is another one
    Event<> LostFocus;  // the user has gone elsewhere, or was elsewhere when the text changed

    const std::string& Text() const { return text_; }
    void SetText(const std::string& text) {
        if (text == text_) return;
        text_ = text;
        NotifyChanged();
        Change.Raise();
    }

    // The user makes it this text.
    void Type(const std::string& text) {
        if (TakesActs()) SetText(text);
    }
    // The user goes elsewhere.
    void Leave() { LostFocus.Raise(); }

  private:
    std::string text_;
};
