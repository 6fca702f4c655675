#include "toolkit/win32/ButtonPeer.h"

#include "toolkit/Form.h"

namespace {

bool IsDefault(const CommandButton& button) {
    const Container* top = button.Parent();
    while (top->Parent()) top = top->Parent();
    const auto* form = dynamic_cast<const Form*>(top);
    return form && form->DefaultButton == &button;
}

}  // namespace

ButtonPeer::ButtonPeer(CommandButton& button, const PeerServices& services)
    : WindowPeer(button, services), button_(button) {
    Create(L"BUTTON", WS_TABSTOP | BS_PUSHBUTTON, 0);
    Follow();
}

CommandButton* ButtonPeer::ButtonOf(HWND window) {
    constexpr LRESULT kPush = DLGC_DEFPUSHBUTTON | DLGC_UNDEFPUSHBUTTON;
    if ((SendMessageW(window, WM_GETDLGCODE, 0, 0) & kPush) == 0) return nullptr;
    auto* peer = dynamic_cast<ButtonPeer*>(Stored(window));
    return peer ? &peer->button_ : nullptr;
}

void ButtonPeer::OnCommand(UINT code) {
    if (code == BN_CLICKED) button_.Press();
}

void ButtonPeer::FollowMore() {
    const LONG shown = GetWindowLongW(Window(), GWL_STYLE) & BS_TYPEMASK;
    const LONG wanted = IsDefault(button_) ? BS_DEFPUSHBUTTON : BS_PUSHBUTTON;
    if (shown != wanted) SendMessageW(Window(), BM_SETSTYLE, static_cast<WPARAM>(wanted), TRUE);
}
