#include "toolkit/win32/ListBoxPeer.h"

ListBoxPeer::ListBoxPeer(ListBox& box, const PeerServices& services)
    : ListControlPeer(box, services, {LB_ADDSTRING, LB_RESETCONTENT, LB_GETCURSEL, LB_SETCURSEL}),
      box_(box) {
    Create(L"LISTBOX", WS_TABSTOP | WS_VSCROLL | LBS_NOTIFY | LBS_NOINTEGRALHEIGHT,
           WS_EX_CLIENTEDGE);
    Follow();
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
