#include "toolkit/win32/ComboBoxPeer.h"

#include <algorithm>

#include "toolkit/win32/CommonControls.h"
#include "toolkit/win32/Edit.h"

namespace {

constexpr int kEntriesShown = 12;
constexpr auto kClosedBox = static_cast<WPARAM>(-1);
constexpr UINT kChosenAgain = 0x1000;  // ours, beside the system's codes

}  // namespace

ComboBoxPeer::ComboBoxPeer(ComboBox& box, const PeerServices& services)
    : ListControlPeer(box, services, {CB_ADDSTRING, CB_RESETCONTENT, CB_GETCURSEL, CB_SETCURSEL}),
      box_(box) {
    const DWORD kind = box.IsEditable() ? CBS_DROPDOWN | CBS_AUTOHSCROLL : CBS_DROPDOWNLIST;
    Create(L"COMBOBOX", WS_TABSTOP | WS_VSCROLL | kind, 0);
    SendMessageW(Window(), CB_SETMINVISIBLE, kEntriesShown, 0);
    if (box.IsEditable()) edit_ = GetWindow(Window(), GW_CHILD);
    Follow();
}

void ComboBoxPeer::OnCommand(UINT code) {
    switch (code) {
        case CBN_DROPDOWN:
            cancelled_ = chosen_ = moved_ = setByProgram_ = false;
            break;
        case CBN_SELCHANGE:
            moved_ = true;
            chosen_ = false;
            Choose();
            break;
        case CBN_EDITCHANGE:
            OnTyped();
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
            if (chosen_) Choose();
            chosen_ = false;
            break;
        default:
            break;
    }
}

void ComboBoxPeer::OnTyped() {
    box_.Type(EditText(edit_));
    Follow();
}

void ComboBoxPeer::Choose() {
    const int32_t selected = Selected();
    // What was typed is no entry; it stays.
    if (selected >= 0 || !box_.IsEditable()) box_.Choose(selected);
    Follow();
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
        Choose();
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
    // Selecting no entry empties the field.
    const int behindCaret = edit_ ? BehindCaret(edit_) : 0;
    ListControlPeer::FollowMore();
    if (edit_ && EditText(edit_) != box_.Text()) SetEditText(edit_, box_.Text(), behindCaret);
}
