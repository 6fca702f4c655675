#include "toolkit/win32/StatusBarPeer.h"

#include "toolkit/win32/CommonControls.h"
#include "toolkit/win32/WideText.h"

StatusBarPeer::StatusBarPeer(StatusBar& bar, const PeerServices& services)
    : WindowPeer(bar, services), bar_(bar) {
    Create(STATUSCLASSNAMEW, CCS_BOTTOM, 0);
    tips_ = std::make_unique<ToolTip>(Window());
    Follow();
}

void StatusBarPeer::OnParentResized() {
    SendMessageW(Window(), WM_SIZE, 0, 0);
    SetParts();
}

int StatusBarPeer::HeightAtBottom() const {
    RECT place;
    GetWindowRect(Window(), &place);
    return place.bottom - place.top;
}

void StatusBarPeer::FollowMore() {
    const auto& panels = bar_.Panels();
    if (texts_.size() != panels.size()) {
        texts_.assign(panels.size(), {});
        SetParts();
    }
    for (size_t part = 0; part < panels.size(); ++part) {
        const std::string& text = panels[part]->Text;
        if (texts_[part] == text) continue;
        texts_[part] = text;
        SendMessageW(Window(), SB_SETTEXTW, part, reinterpret_cast<LPARAM>(ToWide(text).c_str()));
    }
}

void StatusBarPeer::SetParts() {
    RECT area;
    GetClientRect(Window(), &area);
    int total = 0;
    for (const auto& panel : bar_.Panels()) total += panel->weight;
    std::vector<int> ends;
    int sum = 0;
    for (const auto& panel : bar_.Panels()) {
        sum += panel->weight;
        ends.push_back(MulDiv(area.right, sum, total));
    }
    SendMessageW(Window(), SB_SETPARTS, ends.size(), reinterpret_cast<LPARAM>(ends.data()));
    for (size_t part = 0; part < ends.size(); ++part) {
        RECT place = area;
        place.left = part == 0 ? 0 : ends[part - 1];
        place.right = ends[part];
        tips_->Set(static_cast<UINT>(part), place, ToWide(bar_.Panels()[part]->toolTip));
    }
}
