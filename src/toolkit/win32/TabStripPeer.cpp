#include "toolkit/win32/TabStripPeer.h"

#include <algorithm>

#include "toolkit/win32/CommonControls.h"
#include "toolkit/win32/WideText.h"

namespace {

constexpr int32_t kBorder = 30;  // twips

// The native tabs take an "&" for the mark of a key.
std::wstring Shown(const std::string& caption) {
    std::wstring shown;
    for (const wchar_t character : ToWide(caption)) {
        shown.append(character == L'&' ? 2 : 1, character);
    }
    return shown;
}

}  // namespace

TabStripPeer::TabStripPeer(TabStrip& tabs, const PeerServices& services)
    : WindowPeer(tabs, services), tabs_(tabs) {
    Create(WC_TABCONTROLW, WS_TABSTOP | TCS_MULTILINE | TCS_RAGGEDRIGHT, 0);
    Follow();
}

void TabStripPeer::OnNotify(const NMHDR& notice) {
    if (notice.code != TCN_SELCHANGE) return;
    tabs_.Choose(static_cast<int32_t>(SendMessageW(Window(), TCM_GETCURSEL, 0, 0)) + 1);
    Follow();
}

void TabStripPeer::FollowMore() {
    FollowTabs();
    const auto selected = static_cast<WPARAM>(tabs_.SelectedItem() - 1);
    if (SendMessageW(Window(), TCM_GETCURSEL, 0, 0) != static_cast<LRESULT>(selected)) {
        SendMessageW(Window(), TCM_SETCURSEL, selected, 0);
    }
    FollowRows();
    FollowHole();
}

RECT TabStripPeer::DisplayArea() const {
    RECT area;
    GetClientRect(Window(), &area);
    SendMessageW(Window(), TCM_ADJUSTRECT, FALSE, reinterpret_cast<LPARAM>(&area));
    return area;
}

// The strip itself grows, too, when it has more rows.
void TabStripPeer::FollowRows() {
    if (captions_.empty()) return;
    tabs_.SetMoreRows(Services().scale.ToTwips(DisplayArea().top - oneRow_));
    FollowPlace();
}

// Nearly up to the border, whose inner side needn't have the colour of the pages.
void TabStripPeer::FollowHole() {
    RECT whole;
    GetClientRect(Window(), &whole);
    RECT hole = DisplayArea();
    const int more = std::max(0, static_cast<int>(hole.left) - ToPixels(kBorder));
    hole.left -= more;
    hole.right += more;
    hole.bottom += more;
    if (EqualRect(&hole, &hole_) && whole.right == holed_.cx && whole.bottom == holed_.cy) return;
    hole_ = hole;
    holed_ = {whole.right, whole.bottom};
    const HRGN region = CreateRectRgnIndirect(&whole);
    if (hole.left < hole.right && hole.top < hole.bottom) {
        const HRGN inside = CreateRectRgnIndirect(&hole);
        CombineRgn(region, region, inside, RGN_DIFF);
        DeleteObject(inside);
    }
    SetWindowRgn(Window(), region, TRUE);  // which owns it from here on
}

void TabStripPeer::FollowTabs() {
    const auto& tabs = tabs_.Tabs();
    const bool same = std::equal(
        tabs.begin(), tabs.end(), captions_.begin(), captions_.end(),
        [](const TabStrip::Tab& tab, const std::string& shown) { return tab.caption == shown; });
    if (same) return;
    SendMessageW(Window(), TCM_DELETEALLITEMS, 0, 0);
    captions_.clear();
    for (const TabStrip::Tab& tab : tabs) {
        std::wstring text = Shown(tab.caption);
        TCITEMW item{};
        item.mask = TCIF_TEXT;
        item.pszText = text.data();
        SendMessageW(Window(), TCM_INSERTITEMW, captions_.size(), reinterpret_cast<LPARAM>(&item));
        captions_.push_back(tab.caption);
        if (captions_.size() == 1) oneRow_ = DisplayArea().top;
    }
}
