// The least that a program with a window and an icon in the notification area can be: what Orvo's
// start and memory are measured against. The window is hidden, as Orvo's is.

#include <windows.h>
// Counts on windows.h.
#include <shellapi.h>

namespace {

LRESULT CALLBACK Handle(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message != WM_DESTROY) return DefWindowProcW(window, message, wParam, lParam);
    PostQuitMessage(0);
    return 0;
}

}  // namespace

int WINAPI WinMain(HINSTANCE program, HINSTANCE, LPSTR, int) {
    WNDCLASSW windowClass{};
    windowClass.lpfnWndProc = Handle;
    windowClass.hInstance = program;
    windowClass.lpszClassName = L"EmptyWindow";
    RegisterClassW(&windowClass);
    const HWND window =
        CreateWindowW(L"EmptyWindow", L"EmptyWindow", WS_OVERLAPPEDWINDOW, CW_USEDEFAULT, 0, 700,
                      300, nullptr, nullptr, program, nullptr);
    NOTIFYICONDATAW icon{};
    icon.cbSize = sizeof icon;
    icon.hWnd = window;
    icon.uID = 1;
    icon.uFlags = NIF_ICON;
    icon.hIcon = LoadIconW(nullptr, reinterpret_cast<LPCWSTR>(IDI_INFORMATION));
    Shell_NotifyIconW(NIM_ADD, &icon);
    MSG message{};
    while (GetMessageW(&message, nullptr, 0, 0) > 0) DispatchMessageW(&message);
    Shell_NotifyIconW(NIM_DELETE, &icon);
    return 0;
}
