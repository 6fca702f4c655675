#include "toolkit/win32/ContainerPeer.h"

ContainerPeer::ContainerPeer(Container& container) : ContainerPeer(container, kPlainClass, 0) {
    Follow();
}

ContainerPeer::ContainerPeer(Container& container, const wchar_t* className, DWORD style)
    : WindowPeer(container), container_(container) {
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

LRESULT ContainerPeer::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_COMMAND: {
            WindowPeer* child = OfChild(Window(), reinterpret_cast<HWND>(lParam));
            if (child && !child->IsFollowing()) child->OnCommand(HIWORD(wParam));
            return 0;
        }
        case WM_NOTIFY: {
            const auto& notice = *reinterpret_cast<const NMHDR*>(lParam);
            WindowPeer* child = OfChild(Window(), notice.hwndFrom);
            if (!child) break;
            if (!child->IsFollowing()) child->OnNotify(notice);
            return 0;
        }
        case WM_CTLCOLORSTATIC: {
            WindowPeer* child = OfChild(Window(), reinterpret_cast<HWND>(lParam));
            const HBRUSH brush = child ? child->OnColor(reinterpret_cast<HDC>(wParam)) : nullptr;
            if (!brush) break;
            return reinterpret_cast<LRESULT>(brush);
        }
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

LRESULT ContainerPeer::OnOther(UINT message, WPARAM wParam, LPARAM lParam) {
    return DefWindowProcW(Window(), message, wParam, lParam);
}

void ContainerPeer::FollowMore() {
    const auto& children = container_.Children();
    HWND inFront = nullptr;
    for (auto child = children.rbegin(); child != children.rend(); ++child) {
        const WindowPeer* peer = Of(**child);
        if (!peer) continue;
        if (GetWindow(peer->Window(), GW_HWNDPREV) != inFront) {
            SetWindowPos(peer->Window(), inFront ? inFront : HWND_TOP, 0, 0, 0, 0,
                         SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
        }
        inFront = peer->Window();
    }
}
