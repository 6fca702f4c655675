#include "toolkit/win32/LabelPeer.h"

#include "toolkit/win32/Colors.h"
#include "toolkit/win32/CommonControls.h"
#include "toolkit/win32/FontCache.h"

namespace {

DWORD AlignmentStyle(Alignment align) {
    switch (align) {
        case Alignment::Left:
            return SS_LEFT;
        case Alignment::Center:
            return SS_CENTER;
        case Alignment::Right:
            return SS_RIGHT;
    }
    return SS_LEFT;
}

}  // namespace

LabelPeer::LabelPeer(Label& label, const PeerServices& services)
    : WindowPeer(label, services), label_(label) {
    Create(L"STATIC", 0, 0);
    SetWindowSubclass(Window(), Subclass, 0, reinterpret_cast<DWORD_PTR>(&label));
    Follow();
}

LabelPeer::~LabelPeer() { RemoveWindowSubclass(Window(), Subclass, 0); }

// Not every system leaves the "&" of a label alone when it looks for the letter of a key.
LRESULT CALLBACK LabelPeer::Subclass(HWND window, UINT message, WPARAM wParam, LPARAM lParam,
                                     UINT_PTR, DWORD_PTR label) {
    const auto& shown = *reinterpret_cast<const Label*>(label);
    const bool plain = !shown.HasMnemonic && shown.Caption.Get().find('&') != std::string::npos;
    if (message == WM_GETDLGCODE && plain) return 0;
    return DefSubclassProc(window, message, wParam, lParam);
}

void LabelPeer::OnColor(HDC dc) {
    if (!label_.IsEnabled()) {
        SetTextColor(dc, GetSysColor(COLOR_GRAYTEXT));
    } else if (label_.ForeColor != 0) {
        SetTextColor(dc, ToColor(label_.ForeColor));
    }
}

DWORD LabelPeer::Style() const {
    constexpr DWORD kOurs = SS_TYPEMASK | SS_NOPREFIX;
    const auto style = static_cast<DWORD>(GetWindowLongW(Window(), GWL_STYLE));
    return (style & ~kOurs) | AlignmentStyle(label_.Align) | (label_.HasMnemonic ? 0 : SS_NOPREFIX);
}

void LabelPeer::FollowMore() {
    const auto style = static_cast<DWORD>(GetWindowLongW(Window(), GWL_STYLE));
    const DWORD wanted = Style();
    FontCache& fonts = Services().fonts;
    const HFONT font = fonts.Get(label_.Face, fonts.HeightOf(label_.FontHeight));
    if (style != wanted) SetWindowLongW(Window(), GWL_STYLE, static_cast<LONG>(wanted));
    if (font != font_) {
        font_ = font;
        SendMessageW(Window(), WM_SETFONT, reinterpret_cast<WPARAM>(font), FALSE);
    }
    if (style != wanted || color_ != label_.ForeColor) InvalidateRect(Window(), nullptr, TRUE);
    color_ = label_.ForeColor;
}
