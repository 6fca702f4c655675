#include "toolkit/win32/WindowPeer.h"

#include <algorithm>

#include "toolkit/Container.h"
#include "toolkit/win32/Units.h"
#include "toolkit/win32/WideText.h"

WindowPeer::~WindowPeer() {
    toolTip_.reset();
    // The control is half gone: no message of the window's end may reach it.
    SetWindowLongPtrW(window_, GWLP_USERDATA, 0);
    DestroyWindow(window_);
}

WindowPeer* WindowPeer::Stored(HWND window) {
    return reinterpret_cast<WindowPeer*>(GetWindowLongPtrW(window, GWLP_USERDATA));
}

WindowPeer* WindowPeer::OfChild(HWND parent, HWND window) {
    if (!window || GetAncestor(window, GA_PARENT) != parent) return nullptr;
    return Stored(window);
}

WindowPeer* WindowPeer::Of(const Control& control) {
    return dynamic_cast<WindowPeer*>(control.GetPeer());
}

void WindowPeer::Create(const wchar_t* className, DWORD style, DWORD extendedStyle) {
    const Container* parent = control_.Parent();
    const WindowPeer* parentPeer = parent ? Of(*parent) : nullptr;
    if (parent) style |= WS_CHILD | WS_CLIPSIBLINGS;
    window_ = CreateWindowExW(extendedStyle, className, L"", style, 0, 0, 0, 0,
                              parentPeer ? parentPeer->Window() : nullptr, nullptr,
                              GetModuleHandleW(nullptr), this);
    SetWindowLongPtrW(window_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    if (parent) PutInOrder();
}

// Later children are in front of earlier ones.
void WindowPeer::PutInOrder() {
    const auto& children = control_.Parent()->Children();
    auto next = std::find(children.begin(), children.end(), &control_);
    while (next != children.end() && !Of(**next)) ++next;
    const HWND inFront = next == children.end() ? HWND_TOP : Of(**next)->Window();
    SetWindowPos(window_, inFront, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
}

void WindowPeer::Follow() {
    const Following following(*this);
    FollowPlace();
    FollowEnabled();
    FollowMore();
    FollowToolTip();
    FollowVisible();
}

void WindowPeer::FollowPlace() {
    const int left = ToPixels(control_.Left);
    const int top = ToPixels(control_.Top);
    const RECT place{left, top, left + ToPixels(control_.Width), top + ToPixels(control_.Height)};
    if (placed_ && EqualRect(&*placed_, &place)) return;
    placed_ = place;
    tipText_.clear();  // its area is to be set anew
    PutAt(place);
}

void WindowPeer::PutAt(const RECT& place) {
    SetWindowPos(window_, nullptr, place.left, place.top, place.right - place.left,
                 place.bottom - place.top, SWP_NOZORDER | SWP_NOACTIVATE);
}

// Only what the control itself changes: a message box disables its owner meanwhile.
void WindowPeer::FollowEnabled() {
    if (enabled_ == control_.Enabled) return;
    enabled_ = control_.Enabled;
    EnableWindow(window_, enabled_);
}

void WindowPeer::FollowVisible() {
    const bool shown = (GetWindowLongW(window_, GWL_STYLE) & WS_VISIBLE) != 0;
    if (shown == control_.Visible) return;
    if (!control_.Visible) GiveFocusAway();
    ShowWindow(window_, control_.Visible ? SW_SHOWNA : SW_HIDE);
}

// A hidden button that kept the keyboard could still be pressed.
void WindowPeer::GiveFocusAway() {
    const HWND focus = GetFocus();
    const auto hides = [this](HWND stop) { return stop == window_ || IsChild(window_, stop); };
    if (!focus || !hides(focus)) return;
    const HWND form = GetAncestor(window_, GA_ROOT);
    const HWND first = GetNextDlgTabItem(form, focus, TRUE);
    HWND stop = first;
    while (stop && hides(stop)) {
        stop = GetNextDlgTabItem(form, stop, TRUE);
        if (stop == first) stop = nullptr;
    }
    SetFocus(stop ? stop : form);
}

void WindowPeer::FollowToolTip() {
    if (tipText_ == control_.ToolTip.Get()) return;
    tipText_ = control_.ToolTip.Get();
    if (!toolTip_) toolTip_ = std::make_unique<ToolTip>(window_);
    RECT area;
    GetClientRect(window_, &area);
    toolTip_->Set(0, area, ToWide(tipText_));
}

void WindowPeer::SetText(const std::string& text) {
    if (text == text_) return;
    text_ = text;
    SetWindowTextW(window_, ToWide(text).c_str());
}
