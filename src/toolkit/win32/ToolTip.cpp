#include "toolkit/win32/ToolTip.h"

#include "toolkit/win32/CommonControls.h"

ToolTip::ToolTip(HWND window)
    : window_(window),
      tip_(CreateWindowExW(
          WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr, WS_POPUP | TTS_ALWAYSTIP | TTS_NOPREFIX, 0, 0, 0,
          0, GetAncestor(window, GA_ROOT), nullptr, GetModuleHandleW(nullptr), nullptr)) {}

ToolTip::~ToolTip() { DestroyWindow(tip_); }

void ToolTip::Set(UINT part, const RECT& area, const std::wstring& text) {
    TTTOOLINFOW tool{};
    tool.cbSize = TTTOOLINFOW_V2_SIZE;  // the size that every version of the control takes
    tool.uFlags = TTF_SUBCLASS;
    tool.hwnd = window_;
    tool.uId = part;
    tool.rect = area;
    tool.lpszText = const_cast<wchar_t*>(text.c_str());
    SendMessageW(tip_, TTM_DELTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
    if (!text.empty()) SendMessageW(tip_, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
}
