#include "toolkit/win32/WindowPeer.h"

#include <algorithm>

#include "toolkit/Container.h"
#include "toolkit/OptionButton.h"
#include "toolkit/win32/FontCache.h"
#include "toolkit/win32/WideText.h"

namespace {

// Arrow keys move among the options that follow upon each other, and nowhere else.
bool StartsGroup(const Control& control) {
    const auto isOption = [](const Control* other) {
        return dynamic_cast<const OptionButton*>(other) != nullptr;
    };
    const auto& siblings = control.Parent()->Children();
    const auto self = std::find(siblings.begin(), siblings.end(), &control);
    return !isOption(&control) || self == siblings.begin() || !isOption(*std::prev(self));
}

}  // namespace

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
    return IsChild(parent, window) ? Stored(window) : nullptr;
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
    SendMessageW(window_, WM_SETFONT, reinterpret_cast<WPARAM>(services_.fonts.Message()), FALSE);
    if (parent) PutInOrder();
}

// Earlier children are in front of later ones.
void WindowPeer::PutInOrder() {
    HWND inFront = HWND_TOP;
    for (const Control* sibling : control_.Parent()->Children()) {
        if (sibling == &control_) break;
        if (const WindowPeer* peer = Of(*sibling)) inFront = peer->Window();
    }
    SetWindowPos(window_, inFront, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    FollowGroup();
}

void WindowPeer::FollowGroup() {
    const auto style = static_cast<DWORD>(GetWindowLongW(window_, GWL_STYLE));
    const DWORD wanted = StartsGroup(control_) ? style | WS_GROUP : style & ~DWORD{WS_GROUP};
    if (style != wanted) SetWindowLongW(window_, GWL_STYLE, static_cast<LONG>(wanted));
}

void WindowPeer::Follow() {
    const Following following(*this);
    FollowPlace();
    FollowEnabled();
    SetText(Text());
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

void WindowPeer::FollowEnabled() {
    const bool enabled = control_.IsEnabled();
    if (!enabled) GiveFocusAway();
    Enable(enabled);
}

void WindowPeer::Enable(bool enabled) {
    if (enabled_ == enabled) return;
    enabled_ = enabled;
    EnableWindow(window_, enabled);
}

void WindowPeer::FollowVisible() {
    const bool shown = (GetWindowLongW(window_, GWL_STYLE) & WS_VISIBLE) != 0;
    if (shown == control_.Visible) return;
    if (!control_.Visible) GiveFocusAway();
    ShowWindow(window_, control_.Visible ? SW_SHOWNA : SW_HIDE);
}

// A hidden button that kept the keyboard could still be pressed, and a disabled one would take all
// keys from the form.
void WindowPeer::GiveFocusAway() {
    const HWND focus = GetFocus();
    const auto goes = [this](HWND stop) { return stop == window_ || IsChild(window_, stop); };
    if (!focus || !goes(focus)) return;
    const HWND form = GetAncestor(window_, GA_ROOT);
    const HWND first = GetNextDlgTabItem(form, focus, FALSE);
    HWND stop = first;
    while (stop && goes(stop)) {
        stop = GetNextDlgTabItem(form, stop, FALSE);
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
