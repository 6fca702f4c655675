#include "toolkit/win32/TabStripPeer.h"

#include <algorithm>

#include "toolkit/win32/CommonControls.h"
#include "toolkit/win32/FontCache.h"
#include "toolkit/win32/WideText.h"

TabStripPeer::TabStripPeer(TabStrip& tabs, FontCache& fonts) : WindowPeer(tabs), tabs_(tabs) {
    Create(WC_TABCONTROLW, WS_TABSTOP, 0);
    SendMessageW(Window(), WM_SETFONT, reinterpret_cast<WPARAM>(fonts.Message()), FALSE);
    SetText("Pages");  // for screen readers
    Follow();
}

void TabStripPeer::OnNotify(const NMHDR& notice) {
    if (notice.code != TCN_SELCHANGE) return;
    tabs_.Select(static_cast<int32_t>(SendMessageW(Window(), TCM_GETCURSEL, 0, 0)) + 1);
}

void TabStripPeer::FollowMore() {
    FollowTabs();
    const auto selected = static_cast<WPARAM>(tabs_.SelectedItem() - 1);
    if (SendMessageW(Window(), TCM_GETCURSEL, 0, 0) != static_cast<LRESULT>(selected)) {
        SendMessageW(Window(), TCM_SETCURSEL, selected, 0);
    }
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
        std::wstring text = ToWide(tab.caption);
        TCITEMW item{};
        item.mask = TCIF_TEXT;
        item.pszText = text.data();
        SendMessageW(Window(), TCM_INSERTITEMW, captions_.size(), reinterpret_cast<LPARAM>(&item));
        captions_.push_back(tab.caption);
    }
}
