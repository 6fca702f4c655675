#include "toolkit/win32/ButtonPeer.h"

#include "toolkit/win32/FontCache.h"

ButtonPeer::ButtonPeer(CommandButton& button, FontCache& fonts)
    : WindowPeer(button), button_(button) {
    Create(L"BUTTON", WS_TABSTOP | BS_PUSHBUTTON, 0);
    SendMessageW(Window(), WM_SETFONT, reinterpret_cast<WPARAM>(fonts.Message()), FALSE);
    Follow();
}

void ButtonPeer::OnCommand(UINT code) {
    if (code == BN_CLICKED) button_.Press();
}

void ButtonPeer::FollowMore() { SetText(button_.Caption); }
