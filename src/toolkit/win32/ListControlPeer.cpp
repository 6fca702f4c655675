#include "toolkit/win32/ListControlPeer.h"

#include <algorithm>

#include "toolkit/win32/WideText.h"

int32_t ListControlPeer::Selected() const {
    return static_cast<int32_t>(SendMessageW(Window(), messages_.getSelected, 0, 0));
}

void ListControlPeer::FollowMore() {
    FollowItems();
    if (Selected() == list_.ListIndex()) return;
    SelectedAnew();
    SendMessageW(Window(), messages_.select, static_cast<WPARAM>(list_.ListIndex()), 0);
}

void ListControlPeer::FollowItems() {
    const auto& items = list_.Items();
    const bool onlyAdded =
        shown_.size() <= items.size() && std::equal(shown_.begin(), shown_.end(), items.begin());
    if (!onlyAdded) {
        SendMessageW(Window(), messages_.clear, 0, 0);
        shown_.clear();
    }
    while (shown_.size() < items.size()) {
        const std::string& item = items[shown_.size()];
        SendMessageW(Window(), messages_.add, 0, reinterpret_cast<LPARAM>(ToWide(item).c_str()));
        shown_.push_back(item);
    }
}
