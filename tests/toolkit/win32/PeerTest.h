#pragma once

#include <gtest/gtest.h>

#include "base/Number.h"
#include "platform/win32/Win32Loop.h"
#include "toolkit/Form.h"
#include "toolkit/win32/CommonControls.h"
#include "toolkit/win32/WideText.h"
#include "toolkit/win32/Win32Ui.h"
#include "toolkit/win32/WindowPeer.h"

inline HWND WindowOf(const Control& control) { return WindowPeer::Of(control)->Window(); }

inline LRESULT Tell(const Control& control, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
    return SendMessageW(WindowOf(control), message, wParam, lParam);
}

inline std::string TextOf(HWND window) {
    wchar_t text[100];
    const int length = GetWindowTextW(window, text, 100);
    return FromWide({text, static_cast<size_t>(length)});
}
inline std::string TextOf(const Control& control) { return TextOf(WindowOf(control)); }

inline void Focus(const Control& control) { SetFocus(WindowOf(control)); }

inline RECT ClientOf(const Control& control) {
    RECT client;
    GetClientRect(WindowOf(control), &client);
    return client;
}

inline RECT PlaceOf(const Control& control) {
    RECT place;
    GetWindowRect(WindowOf(control), &place);
    return place;
}

inline COLORREF PixelOf(const Control& control, int x, int y) {
    const HDC dc = GetDC(WindowOf(control));
    const COLORREF color = GetPixel(dc, x, y);
    ReleaseDC(WindowOf(control), dc);
    return color;
}

// A form whose keys come through the message loop, as they do in the program.
struct PeerTest : testing::Test {
    explicit PeerTest(int dotsPerInch = 96) : ui(dotsPerInch) {
        loop.TakesMessage = [this](void* message) { return ui.TakeKey(message); };
        ui.BeforeBox = [this] { loop.GiveToSystem(); };
        form.Move(1500, 1500, 6000, 4208);
    }

    void Show() {
        form.Load();
        form.Show();
        Pump();
    }
    void Pump() { loop.RunPending(); }

    static LPARAM FlagsOf(WPARAM key, UINT flags) {
        const UINT scan = MapVirtualKeyW(static_cast<UINT>(key), MAPVK_VK_TO_VSC);
        return static_cast<LPARAM>((flags | scan) << 16 | 1);
    }
    // `flags` are those of the upper word of a key message.
    void Send(UINT message, WPARAM key, UINT flags = 0) {
        PostMessageW(GetFocus(), message, key, FlagsOf(key, flags));
        Pump();
    }
    void Press(WPARAM key, UINT flags = 0) { Send(WM_KEYDOWN, key, flags); }
    void PressWithAlt(WPARAM key) { Send(WM_SYSKEYDOWN, key, KF_ALTDOWN); }

    template <class Kind>
    void Count(Kind& control) {
        control.Click.Connect([this] { ++clicks; });
    }

    Win32Loop loop;
    Win32Ui ui;
    Form form{ui};
    int clicks = 0;
    std::vector<int32_t> seen;
    std::string story;
};
