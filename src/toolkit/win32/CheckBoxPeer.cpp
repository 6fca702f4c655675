#include "toolkit/win32/CheckBoxPeer.h"

CheckBoxPeer::CheckBoxPeer(CheckBox& box, const PeerServices& services)
    : WindowPeer(box, services), box_(box) {
    Create(L"BUTTON", WS_TABSTOP | BS_AUTOCHECKBOX, 0);
    Follow();
}

void CheckBoxPeer::OnCommand(UINT code) {
    if (code != BN_CLICKED) return;
    box_.Press();
    Follow();
}

void CheckBoxPeer::FollowMore() {
    const WPARAM wanted = box_.Value() ? BST_CHECKED : BST_UNCHECKED;
    if (SendMessageW(Window(), BM_GETCHECK, 0, 0) == static_cast<LRESULT>(wanted)) return;
    SendMessageW(Window(), BM_SETCHECK, wanted, 0);
}
