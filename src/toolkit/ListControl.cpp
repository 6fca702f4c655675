#include "toolkit/ListControl.h"

#include <utility>

void ListControl::Clear() {
    items_.clear();
    selected_ = -1;
    NotifyChanged();
}

void ListControl::AddItem(std::string item) {
    items_.push_back(std::move(item));
    NotifyChanged();
}

void ListControl::SetItems(const std::vector<std::string>& items) {
    Clear();
    items_ = items;
    NotifyChanged();
}

void ListControl::SetListIndex(int32_t index) {
    if (index < -1 || index >= ListCount()) return;
    selected_ = index;
    Selected();
    NotifyChanged();
    if (index >= 0) Click.Raise();
}

std::string ListControl::SelectedItem() const {
    return selected_ < 0 ? std::string() : items_[static_cast<size_t>(selected_)];
}
