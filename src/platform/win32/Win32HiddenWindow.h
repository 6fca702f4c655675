#pragma once

#include <windows.h>

#include <functional>
#include <memory>
#include <string>

// A window that is never shown and only takes messages. It belongs to the thread that makes it, and
// only its owner can end it: a request to close does nothing.
class Win32HiddenWindow {
  public:
    using Handler = std::function<LRESULT(HWND, UINT, WPARAM, LPARAM)>;

    // `parent` is HWND_MESSAGE, or null for a window that also gets what is broadcast. `handler`
    // takes all messages once the window is made and passes on what it leaves to DefWindowProcW.
    Win32HiddenWindow(const std::wstring& className, HWND parent, Handler handler);
    Win32HiddenWindow(const Win32HiddenWindow&) = delete;
    Win32HiddenWindow& operator=(const Win32HiddenWindow&) = delete;
    ~Win32HiddenWindow();

    HWND Get() const { return window_; }

  private:
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

    std::shared_ptr<Handler> handler_;
    HWND window_ = nullptr;
};
