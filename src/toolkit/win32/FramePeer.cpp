#include "toolkit/win32/FramePeer.h"

#include "toolkit/win32/CommonControls.h"

FramePeer::FramePeer(Frame& frame, const PeerServices& services)
    : ContainerPeer(frame, services, L"BUTTON", BS_GROUPBOX), frame_(frame) {
    SetWindowSubclass(Window(), Subclass, 0, reinterpret_cast<DWORD_PTR>(this));
    Follow();
}

FramePeer::~FramePeer() { RemoveWindowSubclass(Window(), Subclass, 0); }

LRESULT CALLBACK FramePeer::Subclass(HWND, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                                     DWORD_PTR peer) {
    return reinterpret_cast<FramePeer*>(peer)->OnMessage(message, wParam, lParam);
}

HBRUSH FramePeer::Ground() const {
    const auto* parent = dynamic_cast<const ContainerPeer*>(frame_.Parent()->GetPeer());
    return parent ? parent->Ground() : nullptr;
}

LRESULT FramePeer::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message != WM_ERASEBKGND) return ContainerPeer::OnMessage(message, wParam, lParam);
    // A group box counts on its parent's ground, which is clipped away here.
    RECT area;
    GetClientRect(Window(), &area);
    const HBRUSH ground = Ground();
    FillRect(reinterpret_cast<HDC>(wParam), &area,
             ground ? ground : GetSysColorBrush(COLOR_BTNFACE));
    return 1;
}

LRESULT FramePeer::OnOther(UINT message, WPARAM wParam, LPARAM lParam) {
    return DefSubclassProc(Window(), message, wParam, lParam);
}
