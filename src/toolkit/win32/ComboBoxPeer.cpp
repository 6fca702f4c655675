#include "toolkit/win32/ComboBoxPeer.h"

#include <algorithm>

#include "toolkit/win32/CommonControls.h"
#include "toolkit/win32/FontCache.h"
#include "toolkit/win32/WideText.h"

namespace {

constexpr int kEntriesShown = 12;
constexpr auto kClosedBox = static_cast<WPARAM>(-1);
constexpr UINT kChosenAgain = 0x1000;  // ours, beside the system's codes

}  // namespace

ComboBoxPeer::ComboBoxPeer(ComboBox& box, FontCache& fonts) : WindowPeer(box), box_(box) {
    Create(L"COMBOBOX", WS_TABSTOP | WS_VSCROLL | CBS_DROPDOWNLIST, 0);
    SendMessageW(Window(), WM_SETFONT, reinterpret_cast<WPARAM>(fonts.Message()), FALSE);
    SendMessageW(Window(), CB_SETMINVISIBLE, kEntriesShown, 0);
    Follow();
}

int32_t ComboBoxPeer::Selected() const {
    return static_cast<int32_t>(SendMessageW(Window(), CB_GETCURSEL, 0, 0));
}

void ComboBoxPeer::OnCommand(UINT code) {
    switch (code) {
        case CBN_DROPDOWN:
            cancelled_ = chosen_ = moved_ = setByProgram_ = false;
            break;
        case CBN_SELCHANGE:
            moved_ = true;
            chosen_ = false;
            box_.SetListIndex(Selected());
            break;
        case CBN_SELENDOK:
            chosen_ = !moved_;
            break;
        case CBN_SELENDCANCEL:
            cancelled_ = true;
            break;
        case CBN_CLOSEUP:
            CloseUp();
            break;
        case kChosenAgain:
            if (chosen_) box_.SetListIndex(Selected());
            chosen_ = false;
            break;
        default:
            break;
    }
}

void ComboBoxPeer::CloseUp() {
    if (chosen_) {
        // The entry that was selected already: the system needn't say more, or says it after this.
        PostMessageW(GetParent(Window()), WM_COMMAND, MAKEWPARAM(0, kChosenAgain),
                     reinterpret_cast<LPARAM>(Window()));
    } else if (cancelled_ && setByProgram_) {
        Follow();
    } else if (cancelled_ && Selected() != box_.ListIndex()) {
        // Leaving the list may take the moves in it back without a word.
        box_.SetListIndex(Selected());
    }
}

// The window's own height is that of the closed box with the list below it. What the box has around
// its text is known when it has a height.
void ComboBoxPeer::PutAt(const RECT& place) {
    const LRESULT entry = SendMessageW(Window(), CB_GETITEMHEIGHT, 0, 0);
    RECT withList = place;
    withList.bottom += kEntriesShown * static_cast<int>(entry) + 2 * GetSystemMetrics(SM_CYBORDER);
    const LONG height = place.bottom - place.top;
    LONG around = 0;
    for (int pass = 0; pass < 2; ++pass) {
        const LONG inside = std::max(1L, height - around);
        SendMessageW(Window(), CB_SETITEMHEIGHT, kClosedBox, inside);
        WindowPeer::PutAt(withList);
        RECT closed;
        GetWindowRect(Window(), &closed);
        around = closed.bottom - closed.top - inside;
    }
}

void ComboBoxPeer::FollowMore() {
    FollowItems();
    if (Selected() == box_.ListIndex()) return;
    setByProgram_ = true;
    SendMessageW(Window(), CB_SETCURSEL, static_cast<WPARAM>(box_.ListIndex()), 0);
}

void ComboBoxPeer::FollowItems() {
    const auto& items = box_.Items();
    const bool onlyAdded =
        shown_.size() <= items.size() && std::equal(shown_.begin(), shown_.end(), items.begin());
    if (!onlyAdded) {
        SendMessageW(Window(), CB_RESETCONTENT, 0, 0);
        shown_.clear();
    }
    while (shown_.size() < items.size()) {
        const std::string& item = items[shown_.size()];
        SendMessageW(Window(), CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(ToWide(item).c_str()));
        shown_.push_back(item);
    }
}
