#include "toolkit/win32/FormKeys.h"

#include "toolkit/win32/ButtonPeer.h"
#include "toolkit/win32/ListBoxPeer.h"
#include "toolkit/win32/WideText.h"

namespace {

size_t KeyOf(const MSG& message) { return message.wParam & 0xFF; }

bool IsHeldDown(const MSG& message) { return (HIWORD(message.lParam) & KF_REPEAT) != 0; }

bool PressesButton(const MSG& message) {
    return message.message == WM_KEYDOWN &&
           (message.wParam == VK_RETURN || message.wParam == VK_ESCAPE);
}

// As a list does that is dropped down.
bool IsKeptByControl(MSG& message) {
    return (SendMessageW(message.hwnd, WM_GETDLGCODE, message.wParam,
                         reinterpret_cast<LPARAM>(&message)) &
            DLGC_WANTMESSAGE) != 0;
}

}  // namespace

void FormKeys::OnActive() {
    for (size_t key = 0; key < foreign_.size(); ++key) {
        foreign_[key] = GetKeyState(static_cast<int>(key)) < 0;
    }
}

bool FormKeys::Take(HWND window, MSG& message) {
    if (form_.TakesAllKeys) {
        Report(message);
        return true;
    }
    if (!PressesButton(message) || IsKeptByControl(message)) {
        return IsDialogMessageW(window, &message) != FALSE;
    }
    if (IsHeldDown(message)) return true;
    if (CommandButton* button = ButtonFor(message)) {
        button->Press();
    } else if (ListBox* list =
                   message.wParam == VK_RETURN ? ListBoxPeer::BoxOf(message.hwnd) : nullptr) {
        list->DoubleClick();
    }
    return true;
}

CommandButton* FormKeys::ButtonFor(const MSG& message) const {
    if (message.wParam == VK_ESCAPE) return form_.CancelButton;
    CommandButton* focused = ButtonPeer::ButtonOf(message.hwnd);
    return focused ? focused : form_.DefaultButton;
}

void FormKeys::Report(const MSG& message) {
    switch (message.message) {
        case WM_KEYDOWN:
        case WM_SYSKEYDOWN:
            ReportDown(message);
            break;
        case WM_CHAR:
        case WM_SYSCHAR:
            ReportCharacter(message.wParam);
            break;
        case WM_KEYUP:
        case WM_SYSKEYUP:
            ReportUp(message);
            break;
        default:
            break;
    }
}

void FormKeys::ReportDown(const MSG& message) {
    const size_t key = KeyOf(message);
    if (foreign_[key] && IsHeldDown(message)) return;
    foreign_.reset(key);
    TranslateMessage(&message);
    if (TakesReports()) form_.KeyDown.Raise(static_cast<int32_t>(key));
}

void FormKeys::ReportCharacter(WPARAM character) {
    if (!TakesReports()) return;
    if (const auto byte = ToByte(static_cast<wchar_t>(character))) form_.KeyPress.Raise(*byte);
}

void FormKeys::ReportUp(const MSG& message) {
    const size_t key = KeyOf(message);
    const bool foreign = foreign_[key];
    foreign_.reset(key);
    if (!foreign && TakesReports()) form_.KeyUp.Raise(static_cast<int32_t>(key));
}
