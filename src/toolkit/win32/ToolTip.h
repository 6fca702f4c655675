#pragma once

#include <windows.h>

#include <string>

// The tool tips of a window, one for each part of its area.
class ToolTip {
  public:
    explicit ToolTip(HWND window);
    ToolTip(const ToolTip&) = delete;
    ToolTip& operator=(const ToolTip&) = delete;
    ~ToolTip();

    // An empty text takes the part's tip away.
    void Set(UINT part, const RECT& area, const std::wstring& text);

  private:
    HWND window_;
    HWND tip_;
};
