#include "toolkit/win32/OptionButtonPeer.h"

#include <algorithm>
#include <vector>

#include "toolkit/Container.h"

namespace {

// The options among which the arrow keys move: those that follow upon each other.
std::vector<const OptionButton*> GroupOf(const OptionButton& option) {
    std::vector<const OptionButton*> group;
    bool found = false;
    for (const Control* sibling : option.Parent()->Children()) {
        const auto* other = dynamic_cast<const OptionButton*>(sibling);
        if (!other && found) break;
        other ? group.push_back(other) : group.clear();
        found = found || other == &option;
    }
    return group;
}

}  // namespace

OptionButtonPeer::OptionButtonPeer(OptionButton& option, const PeerServices& services)
    : WindowPeer(option, services), option_(option) {
    Create(L"BUTTON", BS_AUTORADIOBUTTON, 0);
    Follow();
}

void OptionButtonPeer::OnCommand(UINT code) {
    // The system says the same of an unchosen one that only gets the keyboard.
    if (code != BN_CLICKED || !IsChecked()) return;
    option_.Press();
    // The native one has taken the others back.
    for (const OptionButton* other : GroupOf(option_)) {
        if (WindowPeer* peer = Of(*other)) peer->Follow();
    }
}

void OptionButtonPeer::FollowMore() {
    if (IsChecked() != option_.Value()) {
        SendMessageW(Window(), BM_SETCHECK, option_.Value() ? BST_CHECKED : BST_UNCHECKED, 0);
    }
    FollowStops();
}

// The Tab key stops at the chosen option, or at the first one when it can't be reached or there is
// none; the native ones only know the former.
void OptionButtonPeer::FollowStops() {
    const auto group = GroupOf(option_);
    const auto reached = [](const OptionButton* option) {
        return option->Visible && option->IsEnabled();
    };
    auto stop = std::ranges::find_if(
        group, [&](const OptionButton* option) { return option->Value() && reached(option); });
    if (stop == group.end()) stop = std::ranges::find_if(group, reached);
    for (auto option = group.begin(); option != group.end(); ++option) {
        auto* peer = *option == &option_ ? this : dynamic_cast<OptionButtonPeer*>(Of(**option));
        if (peer) peer->SetStop(option == stop);
    }
}

void OptionButtonPeer::SetStop(bool stop) {
    const auto style = static_cast<DWORD>(GetWindowLongW(Window(), GWL_STYLE));
    const DWORD wanted = stop ? style | WS_TABSTOP : style & ~DWORD{WS_TABSTOP};
    if (style != wanted) SetWindowLongW(Window(), GWL_STYLE, static_cast<LONG>(wanted));
}
