#include "bench/driver/TypingField.h"

#include "bench/driver/Until.h"
#include "bench/driver/Windows.h"

namespace bench {

namespace {

constexpr uint32_t kPatienceMs = 3000;
constexpr DWORD kStyle = WS_POPUP | WS_BORDER | WS_VISIBLE | ES_MULTILINE | ES_AUTOVSCROLL;
constexpr int kWidth = 200;
constexpr int kHeight = 60;

// Orders to the field's thread.
constexpr UINT kTakeFocus = WM_APP;
constexpr UINT kTakeKeys = WM_APP + 1;
constexpr UINT kTellKeys = WM_APP + 2;  // lParam: the string to fill
constexpr UINT kClear = WM_APP + 3;
constexpr UINT kEnd = WM_APP + 4;

void TakeTyped() {
    MSG message;
    while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE)) {
        TranslateMessage(&message);
        DispatchMessageA(&message);
    }
}

}  // namespace

TypingField::TypingField() : thread_([this] { Run(); }) { made_.wait(); }

TypingField::~TypingField() {
    PostMessageA(field_, kEnd, 0, 0);
    thread_.join();
}

bool TypingField::TakeFocus() const {
    SendMessageA(field_, kTakeFocus, 0, 0);
    return Until(kPatienceMs, [this] { return HasFocus(); });
}

bool TypingField::HasFocus() const {
    GUITHREADINFO foreground{};
    foreground.cbSize = sizeof foreground;
    return GetGUIThreadInfo(0, &foreground) && field_ && foreground.hwndFocus == field_;
}

std::string TypingField::Text() const {
    SendMessageA(field_, kTakeKeys, 0, 0);
    return TextOf(field_);
}

std::string TypingField::Keys() const {
    std::string keys;
    SendMessageA(field_, kTellKeys, 0, reinterpret_cast<LPARAM>(&keys));
    return keys;
}

void TypingField::Clear() const { SendMessageA(field_, kClear, 0, 0); }

void TypingField::Run() {
    // Out of the way of the windows whose pictures are looked at.
    const int top = GetSystemMetrics(SM_CYSCREEN) - 2 * kHeight;
    field_ = CreateWindowExA(0, "EDIT", "", kStyle, 0, top, kWidth, kHeight, nullptr, nullptr,
                             nullptr, nullptr);
    if (field_) {
        SetWindowLongPtrA(field_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
        edit_ = reinterpret_cast<WNDPROC>(
            SetWindowLongPtrA(field_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(TakeMessage)));
    }
    made_.count_down();
    MSG message;
    while (field_ && GetMessageA(&message, nullptr, 0, 0) > 0) {
        TranslateMessage(&message);
        DispatchMessageA(&message);
    }
}

LRESULT CALLBACK TypingField::TakeMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    auto* self = reinterpret_cast<TypingField*>(GetWindowLongPtrA(window, GWLP_USERDATA));
    return self->Take(message, wParam, lParam);
}

LRESULT TypingField::Take(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_KEYDOWN:
        case WM_KEYUP:
        case WM_SYSKEYDOWN:
        case WM_SYSKEYUP:
            if (!keys_.empty()) keys_ += ' ';
            keys_ += (HIWORD(lParam) & KF_UP ? '-' : '+') + std::to_string(wParam);
            break;
        case kTakeFocus:
            SetForegroundWindow(field_);
            return SetFocus(field_) != nullptr;
        case kTakeKeys:
            TakeTyped();
            return 0;
        case kTellKeys:
            TakeTyped();
            *reinterpret_cast<std::string*>(lParam) = keys_;
            return 0;
        case kClear:
            TakeTyped();
            keys_.clear();
            return SetWindowTextA(field_, "");
        case kEnd:
            DestroyWindow(field_);
            PostQuitMessage(0);
            return 0;
        default:
            break;
    }
    return CallWindowProcA(edit_, field_, message, wParam, lParam);
}

}  // namespace bench
