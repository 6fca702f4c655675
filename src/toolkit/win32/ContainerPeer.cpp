#include "toolkit/win32/ContainerPeer.h"

namespace {

bool IsDark(COLORREF color) {
    return 3 * GetRValue(color) + 6 * GetGValue(color) + GetBValue(color) < 10 * 128;
}

}  // namespace

ContainerPeer::ContainerPeer(Container& container, const PeerServices& services)
    : ContainerPeer(container, services, kPlainClass, 0) {
    Follow();
}

ContainerPeer::ContainerPeer(Container& container, const PeerServices& services,
                             const wchar_t* className, DWORD style)
    : WindowPeer(container, services), container_(container) {
    Create(className, style | WS_CLIPCHILDREN, WS_EX_CONTROLPARENT);
}

void ContainerPeer::RegisterClasses() {
    WNDCLASSEXW windowClass{};
    windowClass.cbSize = sizeof windowClass;
    windowClass.lpfnWndProc = Procedure;
    windowClass.hInstance = GetModuleHandleW(nullptr);
    windowClass.hCursor = LoadCursorW(nullptr, reinterpret_cast<LPCWSTR>(IDC_ARROW));
    windowClass.hbrBackground = GetSysColorBrush(COLOR_BTNFACE);
    for (const wchar_t* name : {kFormClass, kPlainClass, kPictureClass}) {
        windowClass.lpszClassName = name;
        RegisterClassExW(&windowClass);
    }
}

LRESULT CALLBACK ContainerPeer::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    auto* peer = static_cast<ContainerPeer*>(Stored(window));
    if (!peer) return DefWindowProcW(window, message, wParam, lParam);
    return peer->OnMessage(message, wParam, lParam);
}

WindowPeer* ContainerPeer::Reporting(HWND child) const {
    WindowPeer* peer = OfChild(Window(), child);
    return peer && !peer->IsFollowing() ? peer : nullptr;
}

LRESULT ContainerPeer::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_COMMAND:
            if (WindowPeer* child = Reporting(reinterpret_cast<HWND>(lParam))) {
                child->OnCommand(HIWORD(wParam));
            }
            return 0;
        case WM_NOTIFY: {
            const auto& notice = *reinterpret_cast<const NMHDR*>(lParam);
            if (!OfChild(Window(), notice.hwndFrom)) break;
            if (WindowPeer* child = Reporting(notice.hwndFrom)) child->OnNotify(notice);
            return 0;
        }
        case WM_HSCROLL:
            if (WindowPeer* child = Reporting(reinterpret_cast<HWND>(lParam))) child->OnScroll();
            return 0;
        case WM_CTLCOLORSTATIC:
        case WM_CTLCOLORBTN:
            return ColorsOf(message, wParam, lParam);
        case WM_SIZE:
            for (const Control* control : container_.Children()) {
                if (WindowPeer* child = Of(*control)) child->OnParentResized();
            }
            break;
        default:
            break;
    }
    return OnOther(message, wParam, lParam);
}

LRESULT ContainerPeer::ColorsOf(UINT message, WPARAM dc, LPARAM child) {
    const auto to = reinterpret_cast<HDC>(dc);
    LRESULT brush = OnOther(message, dc, child);
    if (const HBRUSH ground = Ground()) {
        LOGBRUSH color{};
        GetObjectW(ground, sizeof color, &color);
        SetBkColor(to, color.lbColor);
        if (IsDark(color.lbColor)) SetTextColor(to, RGB(255, 255, 255));
        brush = reinterpret_cast<LRESULT>(ground);
    }
    if (WindowPeer* peer = OfChild(Window(), reinterpret_cast<HWND>(child))) peer->OnColor(to);
    return brush;
}

LRESULT ContainerPeer::OnOther(UINT message, WPARAM wParam, LPARAM lParam) {
    return DefWindowProcW(Window(), message, wParam, lParam);
}

void ContainerPeer::FollowMore() {
    HWND inFront = nullptr;
    for (const Control* control : container_.Children()) {
        WindowPeer* child = Of(*control);
        if (!child) continue;
        if (GetWindow(child->Window(), GW_HWNDPREV) != inFront) {
            SetWindowPos(child->Window(), inFront ? inFront : HWND_TOP, 0, 0, 0, 0,
                         SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
        }
        child->FollowGroup();
        inFront = child->Window();
    }
}
