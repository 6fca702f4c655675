#include "toolkit/ComboBox.h"

#include <utility>

#include "toolkit/UiBackend.h"

void ComboBox::Clear() {
    items_.clear();
    selected_ = -1;
    NotifyChanged();
}

void ComboBox::AddItem(std::string item) {
    items_.push_back(std::move(item));
    NotifyChanged();
}

void ComboBox::SetListIndex(int32_t index) {
    if (index < -1 || index >= ListCount()) return;
    selected_ = index;
    NotifyChanged();
    if (index >= 0) Click.Raise();
}

std::string ComboBox::Text() const {
    return selected_ < 0 ? std::string() : items_[static_cast<size_t>(selected_)];
}

void ComboBox::Accept(ControlVisitor& visitor) { visitor.Visit(*this); }
