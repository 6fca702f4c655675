#include "bench/driver/Windows.h"

#include <commctrl.h>

#include <cstddef>
#include <utility>

#include "bench/driver/RemoteMemory.h"
#include "bench/driver/Until.h"

namespace bench {

namespace {

constexpr UINT kPatienceMs = 3000;
constexpr int kTrayIconWidth = 20;
constexpr UINT kTextPage = 1252;

LRESULT Send(HWND window, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
    DWORD_PTR result = 0;
    SendMessageTimeoutA(window, message, wParam, lParam, SMTO_ABORTIFHUNG, kPatienceMs, &result);
    return static_cast<LRESULT>(result);
}

struct Search {
    DWORD process = 0;
    const char* className = nullptr;
    std::optional<std::string> text;
    bool shown = false;
    HWND found = nullptr;
};

BOOL CALLBACK Look(HWND window, LPARAM parameter) {
    auto& search = *reinterpret_cast<Search*>(parameter);
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    if (search.process != 0 && process != search.process) return TRUE;
    char className[128] = "";
    GetClassNameA(window, className, sizeof className);
    if (search.className && lstrcmpiA(search.className, className) != 0) return TRUE;
    if (search.text && TextOf(window) != *search.text) return TRUE;
    if (search.shown && !IsWindowVisible(window)) return TRUE;
    search.found = window;
    return FALSE;
}

// Each kind of list has its own numbers for the same messages.
struct ListMessages {
    UINT count;
    UINT length;
    UINT text;
    UINT selected;
};

constexpr ListMessages kCombo = {CB_GETCOUNT, CB_GETLBTEXTLEN, CB_GETLBTEXT, CB_GETCURSEL};
constexpr ListMessages kListBox = {LB_GETCOUNT, LB_GETTEXTLEN, LB_GETTEXT, LB_GETCURSEL};

// As wide text: not every system converts the answer when it comes from another process.
std::string EntryText(HWND list, const ListMessages& messages, LRESULT index) {
    const LRESULT length = Send(list, messages.length, static_cast<WPARAM>(index));
    if (length <= 0) return "";
    std::wstring wide(static_cast<size_t>(length) + 1, L'\0');
    DWORD_PTR got = 0;
    SendMessageTimeoutW(list, messages.text, static_cast<WPARAM>(index),
                        reinterpret_cast<LPARAM>(wide.data()), SMTO_ABORTIFHUNG, kPatienceMs, &got);
    std::string text(wide.size(), '\0');
    WideCharToMultiByte(kTextPage, 0, wide.c_str(), -1, text.data(), static_cast<int>(text.size()),
                        nullptr, nullptr);
    return text.c_str();
}

std::vector<std::string> EntryTexts(HWND list, const ListMessages& messages) {
    std::vector<std::string> texts;
    const LRESULT count = Send(list, messages.count);
    for (LRESULT i = 0; i < count; ++i) texts.push_back(EntryText(list, messages, i));
    return texts;
}

std::string SelectedText(HWND list, const ListMessages& messages) {
    const LRESULT index = Send(list, messages.selected);
    return index < 0 ? "" : EntryText(list, messages, index);
}

// The middle of an entry of a list box, which is brought into view.
std::optional<POINT> EntryPoint(HWND list, int index) {
    RECT place{};
    Send(list, LB_SETTOPINDEX, static_cast<WPARAM>(index));
    const LRESULT got =
        Send(list, LB_GETITEMRECT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&place));
    if (got == LB_ERR || IsRectEmpty(&place)) return std::nullopt;
    return POINT{(place.left + place.right) / 2, (place.top + place.bottom) / 2};
}

struct Gathering {
    const char* className;
    std::vector<HWND> found;
};

BOOL CALLBACK Gather(HWND window, LPARAM parameter) {
    auto& gathering = *reinterpret_cast<Gathering*>(parameter);
    char className[128] = "";
    GetClassNameA(window, className, sizeof className);
    if (lstrcmpiA(gathering.className, className) == 0 && IsWindowVisible(window)) {
        gathering.found.push_back(window);
    }
    return TRUE;
}

BOOL CALLBACK LookForFront(HWND window, LPARAM parameter) {
    auto& search = *reinterpret_cast<Search*>(parameter);
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    const bool captioned = (GetWindowLongA(window, GWL_STYLE) & WS_CAPTION) == WS_CAPTION;
    if (process != search.process || !captioned || !IsWindowVisible(window) ||
        !IsWindowEnabled(window)) {
        return TRUE;
    }
    search.found = window;
    return FALSE;
}

void PutMouse(POINT place, DWORD button = 0) {
    INPUT input{};
    input.type = INPUT_MOUSE;
    // The whole screen is 65536 wide; rounded up, so that the system comes to the same pixel.
    const auto part = [](int pixel, int size) { return (pixel * 65536 + size - 1) / size; };
    input.mi.dx = part(place.x, GetSystemMetrics(SM_CXSCREEN));
    input.mi.dy = part(place.y, GetSystemMetrics(SM_CYSCREEN));
    input.mi.dwFlags = MOUSEEVENTF_ABSOLUTE | MOUSEEVENTF_MOVE | button;
    SendInput(1, &input, sizeof input);
}

RECT TrayIconPlace() {
    RECT place{};
    const HWND taskBar = FindWindowA("Shell_TrayWnd", nullptr);
    if (taskBar && GetWindowRect(taskBar, &place)) place.left = place.right - kTrayIconWidth;
    return place;
}

uint64_t PictureOf(const RECT& place) {
    const int width = place.right - place.left;
    const int height = place.bottom - place.top;
    if (width <= 0 || height <= 0) return 0;
    const HDC screen = GetDC(nullptr);
    const HDC copy = CreateCompatibleDC(screen);
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = height;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    void* bits = nullptr;
    const HBITMAP bitmap = CreateDIBSection(copy, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    uint64_t sum = 0;
    if (bitmap) {
        const HGDIOBJ before = SelectObject(copy, bitmap);
        BitBlt(copy, 0, 0, width, height, screen, place.left, place.top, SRCCOPY);
        GdiFlush();
        sum = 14695981039346656037u;
        for (int i = 0; i < width * height; ++i) {
            sum = (sum ^ (static_cast<const uint32_t*>(bits)[i] & 0xFFFFFF)) * 1099511628211u;
        }
        SelectObject(copy, before);
        DeleteObject(bitmap);
    }
    DeleteDC(copy);
    ReleaseDC(nullptr, screen);
    return sum;
}

}  // namespace

HWND FindWindowOf(DWORD process, const char* className, const std::string& title) {
    Search search{process, className, title, false};
    EnumWindows(Look, reinterpret_cast<LPARAM>(&search));
    return search.found;
}

HWND FrontWindowOf(DWORD process) {
    Search search{process, nullptr, {}, true};
    EnumWindows(LookForFront, reinterpret_cast<LPARAM>(&search));
    return search.found;
}

HWND FindChild(HWND parent, const char* className, const std::optional<std::string>& text) {
    Search search{0, className, text, false};
    if (parent) EnumChildWindows(parent, Look, reinterpret_cast<LPARAM>(&search));
    return search.found;
}

HWND FindShownChild(HWND parent, const char* className, const std::optional<std::string>& text) {
    Search search{0, className, text, true};
    if (parent) EnumChildWindows(parent, Look, reinterpret_cast<LPARAM>(&search));
    return search.found;
}

std::vector<HWND> ShownChildren(HWND parent, const char* className) {
    Gathering gathering{className, {}};
    if (parent) EnumChildWindows(parent, Gather, reinterpret_cast<LPARAM>(&gathering));
    return gathering.found;
}

std::string TextOf(HWND window) {
    char text[1024] = "";
    Send(window, WM_GETTEXT, sizeof text, reinterpret_cast<LPARAM>(text));
    return text;
}

std::vector<std::string> StatusTexts(HWND statusBar) {
    std::vector<std::string> texts;
    const RemoteMemory memory(statusBar, 1024);
    const LRESULT parts = Send(statusBar, SB_GETPARTS);
    for (LRESULT i = 0; i < parts && memory.Address() != 0; ++i) {
        char text[1024] = "";
        Send(statusBar, SB_GETTEXTA, static_cast<WPARAM>(i), memory.Address());
        memory.Read(text, sizeof text - 1);
        texts.emplace_back(text);
    }
    return texts;
}

void PressButton(HWND button) { PostMessageA(button, BM_CLICK, 0, 0); }

void PressBoxButton(HWND box, int button) { PressButton(GetDlgItem(box, button)); }

std::string BoxText(HWND box) { return TextOf(GetDlgItem(box, 0xFFFF)); }

bool Tick(HWND box) {
    const bool before = IsTicked(box);
    Send(box, BM_CLICK);
    return IsTicked(box) != before;
}

bool ChooseOption(HWND option) {
    Send(option, BM_CLICK);
    return IsTicked(option);
}

bool IsTicked(HWND boxOrOption) { return Send(boxOrOption, BM_GETCHECK) == BST_CHECKED; }

int SliderValue(HWND slider) { return static_cast<int>(Send(slider, TBM_GETPOS)); }

bool MoveSlider(HWND slider, int value) {
    for (int before = SliderValue(slider); before != value;) {
        const bool up = before < value;
        PostMessageA(slider, WM_KEYDOWN, up ? VK_RIGHT : VK_LEFT, 0);
        PostMessageA(slider, WM_KEYUP, up ? VK_RIGHT : VK_LEFT, 0);
        int now = before;
        if (!Until(kPatienceMs, [&] { return (now = SliderValue(slider)) != before; }))
            return false;
        if (now != value && (now < value) != up) return false;
        before = now;
    }
    return true;
}

void TypeInto(HWND edit, const std::string& text) {
    ClickAt(edit, 3, 3);
    Send(edit, EM_SETSEL, 0, -1);
    for (const char character : text) {
        PostMessageA(edit, WM_CHAR, static_cast<unsigned char>(character), 0);
    }
}

void ClickAt(HWND window, int x, int y) {
    Send(window, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(x, y));
    Send(window, WM_LBUTTONUP, 0, MAKELPARAM(x, y));
}

void ClickByMouse(HWND window) {
    RECT place{};
    GetWindowRect(window, &place);
    const POINT middle{(place.left + place.right) / 2, (place.top + place.bottom) / 2};
    PutMouse(middle, MOUSEEVENTF_LEFTDOWN);
    PutMouse(middle, MOUSEEVENTF_LEFTUP);
}

bool DragWindow(HWND window, int right, int down, uint32_t milliseconds) {
    RECT before{};
    if (!GetWindowRect(window, &before)) return false;
    const POINT from{
        (before.left + before.right) / 2,
        before.top + GetSystemMetrics(SM_CYFIXEDFRAME) + GetSystemMetrics(SM_CYCAPTION) / 2};
    const POINT to{from.x + right, from.y + down};
    PutMouse(from, MOUSEEVENTF_LEFTDOWN);
    const ULONGLONG end = GetTickCount64() + milliseconds;
    bool there = false;
    do {
        ::Sleep(15);
        there = !there;
        PutMouse(there ? to : from);
    } while (!there || GetTickCount64() < end);
    ::Sleep(15);
    PutMouse(to, MOUSEEVENTF_LEFTUP);
    return Until(kPatienceMs, [&] {
        RECT now{};
        return GetWindowRect(window, &now) && now.left == before.left + right &&
               now.top == before.top + down;
    });
}

std::vector<std::string> TabTexts(HWND tabs) {
    struct {
        TCITEMA item{};
        char text[128] = "";
    } tab;
    std::vector<std::string> texts;
    const RemoteMemory memory(tabs, sizeof tab);
    const LRESULT count = Send(tabs, TCM_GETITEMCOUNT);
    for (LRESULT i = 0; i < count && memory.Address() != 0; ++i) {
        tab = {};
        tab.item.mask = TCIF_TEXT;
        tab.item.pszText =
            reinterpret_cast<char*>(memory.Address()) + offsetof(decltype(tab), text);
        tab.item.cchTextMax = sizeof tab.text - 1;
        memory.Write(&tab, sizeof tab);
        Send(tabs, TCM_GETITEMA, static_cast<WPARAM>(i), memory.Address());
        memory.Read(&tab, sizeof tab);
        texts.emplace_back(tab.text);
    }
    return texts;
}

bool ClickTab(HWND tabs, int index) {
    const RemoteMemory memory(tabs, sizeof(RECT));
    RECT place{};
    if (memory.Address() == 0 ||
        !Send(tabs, TCM_GETITEMRECT, static_cast<WPARAM>(index), memory.Address()) ||
        !memory.Read(&place, sizeof place)) {
        return false;
    }
    const LPARAM point = MAKELPARAM((place.left + place.right) / 2, (place.top + place.bottom) / 2);
    Send(tabs, WM_LBUTTONDOWN, MK_LBUTTON, point);
    Send(tabs, WM_LBUTTONUP, 0, point);
    return Send(tabs, TCM_GETCURSEL) == index;
}

std::vector<std::string> ComboTexts(HWND combo) { return EntryTexts(combo, kCombo); }

std::string ComboSelection(HWND combo) { return SelectedText(combo, kCombo); }

bool ChooseInCombo(HWND combo, int index) {
    if (index < 0 || index >= Send(combo, CB_GETCOUNT)) return false;
    if (Send(combo, CB_SETCURSEL, static_cast<WPARAM>(index)) != index) return false;
    const WPARAM change = MAKEWPARAM(GetDlgCtrlID(combo), CBN_SELCHANGE);
    return PostMessageA(GetParent(combo), WM_COMMAND, change, reinterpret_cast<LPARAM>(combo)) != 0;
}

std::vector<std::string> ListTexts(HWND list) { return EntryTexts(list, kListBox); }

std::string ListSelection(HWND list) { return SelectedText(list, kListBox); }

bool ClickEntry(HWND list, int index) {
    const auto point = EntryPoint(list, index);
    if (!point) return false;
    ClickAt(list, point->x, point->y);
    return Send(list, LB_GETCURSEL) == index;
}

bool DoubleClickEntry(HWND list, int index) {
    const auto point = EntryPoint(list, index);
    if (!point || !ClickEntry(list, index)) return false;
    const LPARAM place = MAKELPARAM(point->x, point->y);
    return PostMessageA(list, WM_LBUTTONDBLCLK, MK_LBUTTON, place) &&
           PostMessageA(list, WM_LBUTTONUP, 0, place);
}

void PressKey(WORD key) {
    INPUT inputs[2]{};
    for (INPUT& input : inputs) {
        input.type = INPUT_KEYBOARD;
        input.ki.wVk = key;
        input.ki.wScan = static_cast<WORD>(MapVirtualKeyA(key, MAPVK_VK_TO_VSC));
    }
    inputs[1].ki.dwFlags = KEYEVENTF_KEYUP;
    SendInput(2, inputs, sizeof *inputs);
}

void PressCloseBox(HWND window) { PostMessageA(window, WM_SYSCOMMAND, SC_CLOSE, 0); }

bool DoubleClickTrayIcon() {
    const HWND taskBar = FindWindowA("Shell_TrayWnd", nullptr);
    RECT place{};
    if (!taskBar || !GetClientRect(taskBar, &place)) return false;
    const LPARAM point = MAKELPARAM(place.right - kTrayIconWidth / 2, place.bottom / 2);
    return PostMessageA(taskBar, WM_LBUTTONDBLCLK, MK_LBUTTON, point) != 0;
}

uint64_t PictureOf(HWND window) {
    RECT place{};
    return GetWindowRect(window, &place) ? PictureOf(place) : 0;
}

uint64_t PictureOf(HWND window, const RECT& part) {
    RECT place{};
    if (!GetWindowRect(window, &place)) return 0;
    return PictureOf(RECT{place.left + part.left, place.top + part.top, place.left + part.right,
                          place.top + part.bottom});
}

uint64_t PictureOfTrayIcon() { return PictureOf(TrayIconPlace()); }

}  // namespace bench
