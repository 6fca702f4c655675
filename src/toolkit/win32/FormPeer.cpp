#include "toolkit/win32/FormPeer.h"

#include <algorithm>
#include <string_view>

#include "toolkit/win32/Units.h"

namespace {

constexpr WORD kIconResource = 101;
constexpr DWORD kResizableStyle = WS_THICKFRAME | WS_MAXIMIZEBOX;

// Keeps what the program has set when it means the same pixel.
void ReportPixels(Property<int32_t, Control>& twips, int pixels) {
    if (ToPixels(twips) != pixels) twips = ToTwips(pixels);
}

}  // namespace

FormPeer::FormPeer(Form& form)
    : ContainerPeer(form, kFormClass, WS_OVERLAPPED | WS_CAPTION | WS_SYSMENU | WS_MINIMIZEBOX),
      form_(form) {
    SetIcons();
    Follow();
}

FormPeer* FormPeer::Of(HWND window) {
    wchar_t name[32];
    const int length = GetClassNameW(window, name, static_cast<int>(std::size(name)));
    if (std::wstring_view(name, static_cast<size_t>(length)) != kFormClass) return nullptr;
    if (GetWindowThreadProcessId(window, nullptr) != GetCurrentThreadId()) return nullptr;
    return static_cast<FormPeer*>(Stored(window));
}

void FormPeer::SetIcons() {
    const HINSTANCE program = GetModuleHandleW(nullptr);
    const auto set = [&](WPARAM kind, int width, int height) {
        const HANDLE icon =
            LoadImageW(program, MAKEINTRESOURCEW(kIconResource), IMAGE_ICON,
                       GetSystemMetrics(width), GetSystemMetrics(height), LR_SHARED);
        if (icon) SendMessageW(Window(), WM_SETICON, kind, reinterpret_cast<LPARAM>(icon));
    };
    set(ICON_BIG, SM_CXICON, SM_CYICON);
    set(ICON_SMALL, SM_CXSMICON, SM_CYSMICON);
}

LRESULT FormPeer::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_CLOSE:
            form_.Unload();
            return 0;
        case WM_ENDSESSION:
            if (wParam) {
                form_.Unload();
                form_.SessionEnding.Raise();
            }
            return 0;
        case WM_ACTIVATE:
            if (HIWORD(wParam) == 0) OnActivate(LOWORD(wParam) != WA_INACTIVE);
            return 0;
        case WM_MOVE:
            Report();
            break;
        case WM_SIZE:
            Report();
            break;
        default:
            break;
    }
    return ContainerPeer::OnMessage(message, wParam, lParam);
}

void FormPeer::Report() {
    if (IsFollowing() || IsIconic(Window())) return;
    RECT place;
    GetWindowRect(Window(), &place);
    {
        // One value at a time reaches the form: following half of them would move the window.
        const Following following(*this);
        ReportPixels(form_.Left, place.left);
        ReportPixels(form_.Top, place.top);
        ReportPixels(form_.Width, place.right - place.left);
        ReportPixels(form_.Height, place.bottom - place.top - extraHeight_);
    }
    Follow();
}

void FormPeer::OnActivate(bool active) {
    if (!active) {
        const HWND focus = GetFocus();
        if (IsChild(Window(), focus)) lastFocus_ = focus;
    } else if (IsChild(Window(), lastFocus_) && IsWindowVisible(lastFocus_) &&
               IsWindowEnabled(lastFocus_)) {
        SetFocus(lastFocus_);
    } else {
        MoveFocus(false);
    }
}

// The windows are stacked with the last control in front, so the system's order is ours reversed.
void FormPeer::MoveFocus(bool back) {
    const HWND focus = GetFocus();
    const HWND from = IsChild(Window(), focus) ? focus : nullptr;
    const HWND next = GetNextDlgTabItem(Window(), from, !back);
    if (next) SetFocus(next);
    SendMessageW(Window(), WM_CHANGEUISTATE, MAKEWPARAM(UIS_CLEAR, UISF_HIDEFOCUS), 0);
}

// The system's scaling makes caption, borders and status bar higher, but not the contents: without
// this the bar would be covered by them. The form's own Height stays what the program has set.
int FormPeer::MissingHeight(const RECT& place) const {
    if (form_.Resizable) return 0;
    int bar = 0;
    int bottom = 0;
    for (const Control* child : form_.Children()) {
        const WindowPeer* peer = WindowPeer::Of(*child);
        bar += peer ? peer->HeightAtBottom() : 0;
        bottom = std::max(bottom, ToPixels(child->Top + child->Height));
    }
    if (bar == 0) return 0;
    RECT client;
    GetClientRect(Window(), &client);
    const int frame = place.bottom - place.top - client.bottom;
    return std::max(0, frame + bottom + bar - ToPixels(form_.Height));
}

void FormPeer::FollowPlace() {
    if (IsIconic(Window())) return;
    RECT place;
    GetWindowRect(Window(), &place);
    extraHeight_ = MissingHeight(place);
    const int left = ToPixels(form_.Left);
    const int top = ToPixels(form_.Top);
    const int width = ToPixels(form_.Width);
    const int height = ToPixels(form_.Height) + extraHeight_;
    if (place.left == left && place.top == top && place.right - place.left == width &&
        place.bottom - place.top == height) {
        return;
    }
    SetWindowPos(Window(), nullptr, left, top, width, height, SWP_NOZORDER | SWP_NOACTIVATE);
}

void FormPeer::FollowVisible() {
    const bool shown = IsWindowVisible(Window()) != FALSE;
    if (shown == form_.Visible) return;
    if (!form_.Visible) {
        ShowWindow(Window(), SW_HIDE);
        return;
    }
    Activate();
}

void FormPeer::Activate() {
    if (IsIconic(Window())) ShowWindow(Window(), SW_RESTORE);
    // Not by ShowWindow, whose first call in a process may be bent by the way it was started.
    SetWindowPos(Window(), HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_SHOWWINDOW);
    // A box that is open in front of the form keeps the keyboard.
    SetForegroundWindow(GetLastActivePopup(Window()));
}

void FormPeer::FollowMore() {
    const auto style = static_cast<DWORD>(GetWindowLongW(Window(), GWL_STYLE));
    const DWORD wanted = form_.Resizable ? style | kResizableStyle : style & ~kResizableStyle;
    if (style != wanted) {
        SetWindowLongW(Window(), GWL_STYLE, static_cast<LONG>(wanted));
        SetWindowPos(Window(), nullptr, 0, 0, 0, 0,
                     SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
    }
    SetText(form_.Caption);
    ContainerPeer::FollowMore();
}
