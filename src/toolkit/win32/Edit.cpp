#include "toolkit/win32/Edit.h"

#include <algorithm>

#include "toolkit/win32/WideText.h"

std::string EditText(HWND edit) {
    std::wstring text(static_cast<size_t>(GetWindowTextLengthW(edit)) + 1, L'\0');
    const int length = GetWindowTextW(edit, text.data(), static_cast<int>(text.size()));
    return FromWide({text.data(), static_cast<size_t>(length)});
}

int BehindCaret(HWND edit) {
    DWORD caret = 0;
    SendMessageW(edit, EM_GETSEL, 0, reinterpret_cast<LPARAM>(&caret));
    return GetWindowTextLengthW(edit) - static_cast<int>(caret);
}

void SetEditText(HWND edit, const std::string& text, int behindCaret) {
    SetWindowTextW(edit, ToWide(text).c_str());
    if (GetFocus() != edit) return;
    const int caret = std::max(0, GetWindowTextLengthW(edit) - behindCaret);
    SendMessageW(edit, EM_SETSEL, static_cast<WPARAM>(caret), caret);
}
