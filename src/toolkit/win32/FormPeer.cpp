#include "toolkit/win32/FormPeer.h"

#include <algorithm>
#include <string_view>

#include "toolkit/UiBackend.h"

namespace {

constexpr WORD kIconResource = 101;
constexpr DWORD kDialogClass = 0x8002;  // the atom of the system's boxes
constexpr DWORD kResizableStyle = WS_THICKFRAME | WS_MAXIMIZEBOX;
constexpr DWORD kFixedStyle = WS_OVERLAPPED | WS_CAPTION | WS_SYSMENU | WS_MINIMIZEBOX;

// Keeps what the program has set when it means the same pixel.
void ReportPixels(Property<int32_t, Control>& twips, int pixels, Scale scale) {
    if (scale.ToPixels(twips) != pixels) twips = scale.ToTwips(pixels);
}

struct OwnedBoxes {
    HWND owner;
    std::vector<HWND> found;
};

BOOL CALLBACK TakeOwnedBox(HWND window, LPARAM boxes) {
    auto& search = *reinterpret_cast<OwnedBoxes*>(boxes);
    if (GetWindow(window, GW_OWNER) == search.owner && IsWindowVisible(window) &&
        IsWindowEnabled(window) && GetClassLongW(window, GCW_ATOM) == kDialogClass) {
        search.found.push_back(window);
    }
    return TRUE;
}

}  // namespace

FormPeer::FormPeer(Form& form, const PeerServices& services)
    : ContainerPeer(form, services, kFormClass, kFixedStyle), form_(form), keys_(form) {
    SetIcons();
    Follow();
}

SIZE FormPeer::FrameSize() {
    RECT frame{};
    AdjustWindowRectEx(&frame, kFixedStyle, FALSE, WS_EX_CONTROLPARENT);
    return {frame.right - frame.left, frame.bottom - frame.top};
}

bool FormPeer::TakeKey(MSG& message) {
    const bool taken = keys_.Take(Window(), message);
    // The system moves the mark of the default button about with the keyboard.
    FollowDefaultButton();
    return taken;
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
            if (wParam) form_.EndSession();
            return 0;
        // What IsDialogMessage asks of a dialog.
        case WM_NEXTDLGCTL:
            GoTo(LOWORD(lParam) ? reinterpret_cast<HWND>(wParam) : NextStop(wParam != 0));
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
        const Scale scale = Services().scale;
        ReportPixels(form_.Left, place.left, scale);
        ReportPixels(form_.Top, place.top, scale);
        ReportPixels(form_.Width, place.right - place.left, scale);
        ReportPixels(form_.Height, place.bottom - place.top - extraHeight_, scale);
    }
    Follow();
}

void FormPeer::OnActivate(bool active) {
    if (!active) {
        const HWND focus = GetFocus();
        if (IsChild(Window(), focus)) lastFocus_ = focus;
        return;
    }
    keys_.OnActive();
    if (IsChild(Window(), lastFocus_) && IsWindowVisible(lastFocus_) &&
        IsWindowEnabled(lastFocus_)) {
        SetFocus(lastFocus_);
    } else {
        GoTo(FirstStop());
    }
}

HWND FormPeer::FirstStop() const {
    const WindowPeer* first = form_.FirstFocus ? Of(*form_.FirstFocus) : nullptr;
    return first ? first->Window() : GetNextDlgTabItem(Window(), nullptr, FALSE);
}

// The letter of a frame gives it the keyboard, so that the next stop is the first one in it.
HWND FormPeer::NextStop(bool back) const {
    const HWND focus = GetFocus();
    const bool holdsOthers = (GetWindowLongW(focus, GWL_EXSTYLE) & WS_EX_CONTROLPARENT) != 0;
    const HWND inside =
        holdsOthers && focus != Window() ? GetNextDlgTabItem(focus, nullptr, back) : nullptr;
    return inside ? inside : GetNextDlgTabItem(Window(), focus, back);
}

// A text that the Tab key comes to is selected as a whole.
void FormPeer::GoTo(HWND control) {
    const HWND to = control ? control : Window();
    if ((SendMessageW(to, WM_GETDLGCODE, 0, 0) & DLGC_HASSETSEL) != 0) {
        SendMessageW(to, EM_SETSEL, 0, -1);
    }
    SetFocus(to);
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

// While a box is open the system sees to its owner.
void FormPeer::FollowEnabled() {
    FollowBoxes();
    if (!Services().ui.IsBoxOnTop()) Enable(form_.TakesActs());
}

// The form's boxes can't be reached while a modal form stands over them.
void FormPeer::FollowBoxes() {
    const Form* modal = Services().ui.ModalForm();
    if (!modal || modal == &form_) {
        for (const HWND box : blockedBoxes_) EnableWindow(box, TRUE);
        blockedBoxes_.clear();
    } else if (blockedBoxes_.empty()) {
        OwnedBoxes boxes{Window(), {}};
        EnumThreadWindows(GetCurrentThreadId(), TakeOwnedBox, reinterpret_cast<LPARAM>(&boxes));
        for (const HWND box : boxes.found) EnableWindow(box, FALSE);
        blockedBoxes_ = std::move(boxes.found);
    }
}

void FormPeer::FollowVisible() {
    const bool shown = IsWindowVisible(Window()) != FALSE;
    if (shown == form_.Visible) return;
    if (!form_.Visible) {
        ShowWindow(Window(), SW_HIDE);
        return;
    }
    const WindowPeer* owner = form_.Owner() ? Of(*form_.Owner()) : nullptr;
    if (owner) {
        SetWindowLongPtrW(Window(), GWLP_HWNDPARENT, reinterpret_cast<LONG_PTR>(owner->Window()));
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
    FollowStyle();
    ContainerPeer::FollowMore();
    FollowDefaultButton();
}

void FormPeer::FollowStyle() {
    const auto style = static_cast<DWORD>(GetWindowLongW(Window(), GWL_STYLE));
    DWORD wanted = form_.Resizable ? style | kResizableStyle : style & ~kResizableStyle;
    wanted = form_.CanMinimize ? wanted | WS_MINIMIZEBOX : wanted & ~DWORD{WS_MINIMIZEBOX};
    if (style != wanted) {
        SetWindowLongW(Window(), GWL_STYLE, static_cast<LONG>(wanted));
        SetWindowPos(Window(), nullptr, 0, 0, 0, 0,
                     SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
    }
    const bool onTop = (GetWindowLongW(Window(), GWL_EXSTYLE) & WS_EX_TOPMOST) != 0;
    if (onTop != form_.StaysOnTop) {
        SetWindowPos(Window(), form_.StaysOnTop ? HWND_TOPMOST : HWND_NOTOPMOST, 0, 0, 0, 0,
                     SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    }
}

void FormPeer::FollowDefaultButton() {
    WindowPeer* button = form_.DefaultButton ? Of(*form_.DefaultButton) : nullptr;
    if (button) button->Follow();
}
