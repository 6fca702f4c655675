#include "toolkit/ComboBox.h"

void ComboBox::Clear() {
    text_.clear();
    ListControl::Clear();
}

void ComboBox::SetText(const std::string& text) {
    if (!IsEditable() || text == text_) return;
    text_ = text;
    Select(-1);
    NotifyChanged();
    Change.Raise();
}
