#include "toolkit/win32/LabelPeer.h"

#include "toolkit/win32/Colors.h"
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

LabelPeer::LabelPeer(Label& label, FontCache& fonts)
    : WindowPeer(label), label_(label), fonts_(fonts) {
    Create(L"STATIC", SS_NOPREFIX, 0);
    Follow();
}

HBRUSH LabelPeer::OnColor(HDC dc) {
    const Color color = label_.ForeColor;
    SetTextColor(dc, color == 0 ? GetSysColor(COLOR_BTNTEXT) : ToColor(color));
    SetBkMode(dc, TRANSPARENT);
    return GetSysColorBrush(COLOR_BTNFACE);
}

void LabelPeer::FollowMore() {
    const auto style = static_cast<DWORD>(GetWindowLongW(Window(), GWL_STYLE));
    const DWORD wanted = (style & ~DWORD{SS_TYPEMASK}) | AlignmentStyle(label_.Align);
    const HFONT font = fonts_.Get(label_.Face, fonts_.HeightOf(label_.FontHeight));
    if (style != wanted) SetWindowLongW(Window(), GWL_STYLE, static_cast<LONG>(wanted));
    if (font != font_) {
        font_ = font;
        SendMessageW(Window(), WM_SETFONT, reinterpret_cast<WPARAM>(font), FALSE);
    }
    if (style != wanted || color_ != label_.ForeColor) InvalidateRect(Window(), nullptr, TRUE);
    color_ = label_.ForeColor;
    SetText(label_.Caption);
}
