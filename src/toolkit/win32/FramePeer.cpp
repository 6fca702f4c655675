#include "toolkit/win32/FramePeer.h"

#include "toolkit/win32/CommonControls.h"
#include "toolkit/win32/FontCache.h"

FramePeer::FramePeer(Frame& frame, FontCache& fonts)
    : ContainerPeer(frame, L"BUTTON", BS_GROUPBOX), frame_(frame) {
    SetWindowSubclass(Window(), Subclass, 0, reinterpret_cast<DWORD_PTR>(this));
    SendMessageW(Window(), WM_SETFONT, reinterpret_cast<WPARAM>(fonts.Message()), FALSE);
    Follow();
}

FramePeer::~FramePeer() { RemoveWindowSubclass(Window(), Subclass, 0); }

LRESULT CALLBACK FramePeer::Subclass(HWND, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                                     DWORD_PTR peer) {
    return reinterpret_cast<FramePeer*>(peer)->OnMessage(message, wParam, lParam);
}

LRESULT FramePeer::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message != WM_ERASEBKGND) return ContainerPeer::OnMessage(message, wParam, lParam);
    // A group box counts on its parent's ground, which is clipped away here.
    RECT area;
    GetClientRect(Window(), &area);
    FillRect(reinterpret_cast<HDC>(wParam), &area, GetSysColorBrush(COLOR_BTNFACE));
    return 1;
}

LRESULT FramePeer::OnOther(UINT message, WPARAM wParam, LPARAM lParam) {
    return DefSubclassProc(Window(), message, wParam, lParam);
}

void FramePeer::FollowMore() {
    SetText(frame_.Caption);
    ContainerPeer::FollowMore();
}
