#pragma once

#include "toolkit/ListControl.h"

// A drop-down list to choose one entry from. Height is that of the closed box.
class ComboBox : public ListControl {
  public:
    enum class Kind {
        List,
        Editable,  // any other text may be typed as well
    };

    explicit ComboBox(Container* parent, Kind kind = Kind::List)
        : ListControl(parent), kind_(kind) {}

    Event<> Change;  // the text was typed or set; for selecting there is Click

    void Clear() override;

    bool IsEditable() const { return kind_ == Kind::Editable; }

    // What the closed box shows: the selected entry, or what was typed.
    const std::string& Text() const { return text_; }
    // Only of an editable one; no entry is selected then.
    void SetText(const std::string& text);

    // The user makes it this text.
    void Type(const std::string& text) {
        if (TakesActs()) SetText(text);
    }

  protected:
    void Selected() override { text_ = SelectedItem(); }

  private:
    const Kind kind_;
    std::string text_;
};
