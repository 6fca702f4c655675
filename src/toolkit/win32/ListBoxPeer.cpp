#include "toolkit/win32/ListBoxPeer.h"

#include <iterator>
#include <string_view>

ListBoxPeer::ListBoxPeer(ListBox& box, const PeerServices& services)
    : ListControlPeer(box, services, {LB_ADDSTRING, LB_RESETCONTENT, LB_GETCURSEL, LB_SETCURSEL}),
      box_(box) {
    Create(L"LISTBOX", WS_TABSTOP | WS_VSCROLL | LBS_NOTIFY | LBS_NOINTEGRALHEIGHT,
           WS_EX_CLIENTEDGE);
    Follow();
}

ListBox* ListBoxPeer::BoxOf(HWND window) {
    wchar_t name[8] = L"";
    GetClassNameW(window, name, static_cast<int>(std::size(name)));
    if (std::wstring_view(name) != L"ListBox") return nullptr;
    auto* peer = dynamic_cast<ListBoxPeer*>(Stored(window));
    return peer ? &peer->box_ : nullptr;
}

void ListBoxPeer::OnCommand(UINT code) {
    if (code == LBN_SELCHANGE) {
        box_.Choose(Selected());
    } else if (code == LBN_DBLCLK) {
        box_.DoubleClick();
    } else {
        return;
    }
    Follow();
}
