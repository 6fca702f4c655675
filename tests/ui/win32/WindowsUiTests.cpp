// The windows on the real toolkit and the real loop, with a user at mouse and keyboard who has a
// thread of his own.

#include <algorithm>
#include <atomic>
#include <chrono>
#include <functional>
#include <future>
#include <gtest/gtest.h>
#include <thread>
#include <utility>
#include <vector>

#include "bench/driver/Until.h"
#include "bench/driver/Windows.h"
#include "platform/Timer.h"
#include "platform/virtual/VirtualPlatform.h"
#include "platform/win32/Win32Clock.h"
#include "platform/win32/Win32Loop.h"
#include "platform/win32/Win32Screen.h"
#include "toolkit/win32/Win32Ui.h"
#include "toolkit/win32/WindowPeer.h"
#include "ui/ctlEventSelector.h"
#include "ui/frmGeneralSetup.h"
#include "ui/frmGetKeys.h"

using namespace bench;
using Steady = std::chrono::steady_clock;

namespace {

constexpr uint32_t kSoonMs = 5000;
constexpr uint32_t kMeasureMs = 2000;
constexpr char kMain[] = "under all";
constexpr char kGetKeys[] = "  ORVO - Get Key";
constexpr char kGeneralOptions[] = "  ORVO - General Options";
constexpr char kBox[] = "  ORVO";

HWND WindowOf(const Control& control) { return WindowPeer::Of(control)->Window(); }

void Key(WORD key, DWORD flags) {
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = key;
    input.ki.dwFlags = flags;
    SendInput(1, &input, sizeof input);
}

void Press(WORD key) {
    Key(key, 0);
    ::Sleep(30);
    Key(key, KEYEVENTF_KEYUP);
    ::Sleep(30);
}

HWND Front() { return FrontWindowOf(GetCurrentProcessId()); }

// The window on top, once it has this title and the keyboard.
HWND Comes(const char* title) {
    HWND front = nullptr;
    EXPECT_TRUE(Until(kSoonMs, [&] {
        front = Front();
        return front && TextOf(front) == title && GetForegroundWindow() == front;
    })) << title;
    return front;
}

struct WindowsUiTest : testing::Test {
    WindowsUiTest() {
        loop.TakesMessage = [this](void* message) { return ui.TakeKey(message); };
        form.Caption = kMain;
        form.Move(3000, 3000, 6000, 3000);
        form.Load();
        form.Show();
        loop.RunPending();
        tick.Tick.Connect([this] { ticks.push_back(Steady::now()); });
        tick.SetEnabled(true);
    }

    // Runs the loop until the user is done; what is still open then is closed.
    void Run(const std::function<void()>& user) {
        std::atomic<bool> done = false;
        std::thread hands([&] {
            Comes(kMain);
            user();
            Until(kSoonMs, [this] {
                const HWND front = Front();
                if (front != WindowOf(form)) PostMessageW(front, WM_CLOSE, 0, 0);
                return front == WindowOf(form);
            });
            loop.Post([&] { done = true; });
        });
        loop.RunUntil([&] { return done.load(); });
        hands.join();
    }

    template <class Window>
    HWND Open(const char* title) {
        loop.Post([this] { Window(services).OpenModally(); });
        return Comes(title);
    }

    // What the ticks of the time since the last call had between them, in the middle.
    double TakeMedian() {
        std::promise<std::vector<Steady::time_point>> taken;
        loop.Post([&] { taken.set_value(std::exchange(ticks, {})); });
        const auto times = taken.get_future().get();
        std::vector<double> intervals;
        for (size_t i = 1; i < times.size(); ++i) {
            intervals.push_back(
                std::chrono::duration<double, std::milli>(times[i] - times[i - 1]).count());
        }
        if (intervals.size() < 100) return 0;
        const auto middle = intervals.begin() + static_cast<std::ptrdiff_t>(intervals.size() / 2);
        std::nth_element(intervals.begin(), middle, intervals.end());
        return *middle;
    }

    VirtualPlatform machine;
    Win32Clock clock;
    Win32Loop loop;
    Win32Ui ui;
    Win32Screen screen;
    std::vector<ScreenRect> monitors = screen.EnumDisplayMonitors();
    cSetupHolder options{machine.ini, machine.files, clock, machine.registry, "C:\\Orvo"};
    WindowState windows;
    WindowServices services{ui, loop, clock, screen, monitors, options, windows};
    cSession session{machine.ipc, clock};
    EventOutput output{session, machine.keyboard, loop};
    Form form{ui};
    ctlEventSelector selector{&form, {services, session, output}};
    Timer tick{loop, 10};
    std::vector<Steady::time_point> ticks;
};

}  // namespace

TEST_F(WindowsUiTest, KeysOfTheKeyboardBecomeTheKeystroke) {
    selector.SetFSEvent(3);
    SetFocus(WindowOf(selector.btnKeyReader));
    Run([this] {
        // Held beyond the opening. Wine doesn't mark the repeats of SendInput as such.
        Key(VK_RETURN, 0);
        const HWND window = Comes(kGetKeys);
        PostMessageW(window, WM_KEYDOWN, VK_RETURN, KF_REPEAT << 16 | 1);
        ::Sleep(50);
        Key(VK_RETURN, KEYEVENTF_KEYUP);
        Press(VK_MENU);
        EXPECT_EQ(BoxText(Comes(kBox)), "ALT and ALT-GROUND keys are not supported");
        Press(VK_RETURN);
        EXPECT_EQ(Comes(kGetKeys), window);
        Press(VK_SHIFT);
        Press(VK_CONTROL);
        EXPECT_TRUE(IsWindowVisible(window));
        Press('A');
        EXPECT_EQ(Comes(kMain), WindowOf(form));
    });
    EXPECT_EQ(selector.labKeyStrokes.Caption.Get(), "CTRL-SHIFT-A");
    EXPECT_EQ(selector.KeyAscii(), 'a');
}

TEST_F(WindowsUiTest, TheTickKeepsItsPaceUnderThreeWindowsAndWhileOneIsDragged) {
    Run([this] {
        const HWND below = Open<frmGeneralSetup>(kGeneralOptions);
        const HWND window = Open<frmGetKeys>(kGetKeys);
        Press(VK_MENU);
        Comes(kBox);
        EXPECT_FALSE(IsWindowEnabled(window) || IsWindowEnabled(below));
        TakeMedian();
        ::Sleep(kMeasureMs);
        EXPECT_NEAR(TakeMedian(), 10, 2);
        Press(VK_RETURN);
        Comes(kGetKeys);
        TakeMedian();
        EXPECT_TRUE(DragWindow(window, 60, 40, kMeasureMs));
        EXPECT_NEAR(TakeMedian(), 10, 2);
        Press('A');
        EXPECT_EQ(Comes(kGeneralOptions), below);
        Press(VK_ESCAPE);
        EXPECT_EQ(Comes(kMain), WindowOf(form));
    });
}
