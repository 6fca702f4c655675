#include "toolkit/win32/TextBoxPeer.h"

#include "toolkit/win32/Edit.h"

TextBoxPeer::TextBoxPeer(TextBox& box, const PeerServices& services)
    : WindowPeer(box, services), box_(box) {
    Create(L"EDIT", WS_TABSTOP | ES_AUTOHSCROLL, WS_EX_CLIENTEDGE);
    Follow();
}

void TextBoxPeer::OnCommand(UINT code) {
    if (code == EN_CHANGE) {
        box_.Type(EditText(Window()));
        Follow();
    }
    const bool left = code == EN_CHANGE ? GetFocus() != Window() : code == EN_KILLFOCUS;
    if (left) box_.Leave();
}

void TextBoxPeer::FollowMore() {
    if (EditText(Window()) == box_.Text()) return;
    SetEditText(Window(), box_.Text(), BehindCaret(Window()));
}
