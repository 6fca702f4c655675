#include "platform/win32/Win32HiddenWindow.h"

Win32HiddenWindow::Win32HiddenWindow(const std::wstring& className, HWND parent, Handler handler)
    : handler_(std::make_shared<Handler>(std::move(handler))) {
    WNDCLASSEXW windowClass{};
    windowClass.cbSize = sizeof windowClass;
    windowClass.lpfnWndProc = Procedure;
    windowClass.hInstance = GetModuleHandleW(nullptr);
    windowClass.lpszClassName = className.c_str();
    // Fails from the second window of the class on, which is as good.
    RegisterClassExW(&windowClass);
    window_ = CreateWindowExW(0, className.c_str(), L"", WS_POPUP, 0, 0, 0, 0, parent, nullptr,
                              windowClass.hInstance, nullptr);
    SetWindowLongPtrW(window_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
}

Win32HiddenWindow::~Win32HiddenWindow() {
    SetWindowLongPtrW(window_, GWLP_USERDATA, 0);
    DestroyWindow(window_);
}

LRESULT CALLBACK Win32HiddenWindow::Procedure(HWND window, UINT message, WPARAM wParam,
                                              LPARAM lParam) {
    const auto* self =
        reinterpret_cast<const Win32HiddenWindow*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (!self) return DefWindowProcW(window, message, wParam, lParam);
    // Tools that close all windows of a program mean the ones that a user sees.
    if (message == WM_CLOSE) return 0;
    // The handler may end the window's owner.
    const std::shared_ptr<Handler> handler = self->handler_;
    return (*handler)(window, message, wParam, lParam);
}
