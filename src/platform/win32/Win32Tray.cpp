#include "platform/win32/Win32Tray.h"

#include <windows.h>
// Counts on windows.h.
#include <shellapi.h>

#include "platform/win32/Win32HiddenWindow.h"

namespace {

// Resource ids of the executable's icons.
constexpr WORD kYellowIcon = 101;
constexpr WORD kGreenIcon = 102;

constexpr size_t kMostTip = 63;

HICON LoadSmallIcon(TrayIcon icon) {
    if (icon == TrayIcon::None) return nullptr;
    const WORD id = icon == TrayIcon::Green ? kGreenIcon : kYellowIcon;
    // Shared: the system keeps it, and loads it once.
    return static_cast<HICON>(LoadImageA(GetModuleHandleA(nullptr), MAKEINTRESOURCEA(id),
                                         IMAGE_ICON, GetSystemMetrics(SM_CXSMICON),
                                         GetSystemMetrics(SM_CYSMICON), LR_SHARED));
}

}  // namespace

Win32Tray::Win32Tray()
    : taskBarCreated_(RegisterWindowMessageW(L"TaskbarCreated")),
      // The task bar tells top-level windows only that it is there.
      window_(std::make_unique<Win32HiddenWindow>(
          L"OrvoTray", nullptr, [this](HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
              return static_cast<LRESULT>(Handle(window, message, wParam, lParam));
          })) {
    // Also when this program runs with more rights than the task bar does.
    ChangeWindowMessageFilterEx(window_->Get(), taskBarCreated_, MSGFLT_ALLOW, nullptr);
}

Win32Tray::~Win32Tray() {
    if (icon_) Tell(NIM_DELETE, *icon_);
}

bool Win32Tray::NotifyIcon(uint32_t message, const TrayRecord& record) {
    Remember(message, record);
    // The mouse as well is told of by a task bar that may have fewer rights.
    if ((record.flags & NIF_MESSAGE) != 0) {
        ChangeWindowMessageFilterEx(window_->Get(), record.callbackMessage, MSGFLT_ALLOW, nullptr);
    }
    if (Tell(message, record)) return true;
    const bool lacking = message == NIM_MODIFY && icon_ && icon_->id == record.id;
    return lacking && Tell(NIM_ADD, *icon_);
}

void Win32Tray::Remember(uint32_t message, const TrayRecord& record) {
    if (message == NIM_ADD) {
        icon_ = record;
    } else if (icon_ && icon_->id == record.id) {
        if (message == NIM_DELETE) {
            icon_.reset();
            return;
        }
        icon_->flags |= record.flags;
        if ((record.flags & NIF_MESSAGE) != 0) icon_->callbackMessage = record.callbackMessage;
        if ((record.flags & NIF_ICON) != 0) icon_->icon = record.icon;
        if ((record.flags & NIF_TIP) != 0) icon_->tip = record.tip;
    }
}

bool Win32Tray::Tell(uint32_t message, const TrayRecord& record) const {
    NOTIFYICONDATAA data{};
    data.cbSize = sizeof data;
    data.hWnd = window_->Get();
    data.uID = record.id;
    data.uFlags = record.flags;
    data.uCallbackMessage = record.callbackMessage;
    data.hIcon = LoadSmallIcon(record.icon);
    record.tip.copy(data.szTip, kMostTip);
    return Shell_NotifyIconA(message, &data) != 0;
}

intptr_t Win32Tray::Handle(void* window, uint32_t message, uintptr_t wParam, intptr_t lParam) {
    if (message == taskBarCreated_) {
        if (icon_) Tell(NIM_ADD, *icon_);
        return 0;
    }
    if (icon_ && message == icon_->callbackMessage && wParam == icon_->id) {
        MouseActivity.Raise(LOWORD(lParam));
        return 0;
    }
    return DefWindowProcW(static_cast<HWND>(window), message, wParam, lParam);
}
