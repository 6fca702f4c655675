#include <windows.h>

#include <gtest/gtest.h>
// Counts on windows.h.
#include <shellapi.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <thread>
#include <utility>
#include <vector>

#include "bench/driver/TypingField.h"
#include "bench/driver/Until.h"
#include "config/ProfileStore.h"
#include "platform/win32/Win32Clock.h"
#include "platform/win32/Win32Files.h"
#include "platform/win32/Win32Handle.h"
#include "platform/win32/Win32Hid.h"
#include "platform/win32/Win32HidLibrary.h"
#include "platform/win32/Win32HiddenWindow.h"
#include "platform/win32/Win32Ini.h"
#include "platform/win32/Win32Keyboard.h"
#include "platform/win32/Win32Loop.h"
#include "platform/win32/Win32PanelLink.h"
#include "platform/win32/Win32PanelReader.h"
#include "platform/win32/Win32Path.h"
#include "platform/win32/Win32Tray.h"

using bench::TypingField;
using bench::Until;

namespace {

using Report = std::array<uint8_t, 4>;
using Reports = std::vector<Report>;

constexpr char kPipe[] = R"(\\.\pipe\orvo-adapter-tests)";

// The device is a pipe that hands over what is sent in the same pieces.
struct PanelLinkTest : testing::Test {
    PanelLinkTest() {
        hid->setNumInputBuffers = [](HANDLE handle, ULONG) -> BOOLEAN {
            DWORD mode = PIPE_READMODE_MESSAGE;
            return SetNamedPipeHandleState(handle, &mode, nullptr, nullptr) != 0;
        };
        link.DeviceAddress = kPipe;
        link.ReadWait = 1500;
    }

    void Send(const std::vector<uint8_t>& bytes) {
        DWORD count = 0;
        EXPECT_TRUE(WriteFile(device.Get(), bytes.data(), static_cast<DWORD>(bytes.size()), &count,
                              nullptr));
    }

    // Until so many reports have come, or 2 s.
    void Await(size_t count) {
        const ULONGLONG end = GetTickCount64() + 2000;
        const auto timer = loop.StartTimer(10, [] {});
        loop.RunUntil([&] { return seen.size() >= count || GetTickCount64() > end; });
        loop.StopTimer(timer);
    }

    void StopAtOnce() {
        const ULONGLONG start = GetTickCount64();
        link.StopReading();
        EXPECT_LT(GetTickCount64() - start, 500u);
    }

    Win32Handle device{
        CreateNamedPipeA(kPipe, PIPE_ACCESS_DUPLEX, PIPE_TYPE_MESSAGE, 1, 4096, 4096, 0, nullptr)};
    Win32Loop loop;
    std::shared_ptr<Win32HidLibrary> hid = std::make_shared<Win32HidLibrary>();
    Win32PanelLink link{loop, hid};
    Reports seen;
    ScopedConnection input =
        link.RawInput.Connect([this](auto... bytes) { seen.push_back({bytes...}); });
};

TEST_F(PanelLinkTest, WholeReportsComeInOrderAndShortOnesNot) {
    link.StartReading();
    Send({0, 1, 2, 3});
    Send({0, 4, 5, 6, 0, 7, 8, 9, 0, 10, 11, 12});
    Send({0, 99, 99});
    Send({0, 13, 14, 15, 99});
    Await(5);
    EXPECT_EQ(
        seen,
        (Reports{{0, 1, 2, 3}, {0, 4, 5, 6}, {0, 7, 8, 9}, {0, 10, 11, 12}, {0, 13, 14, 15}}));
    StopAtOnce();
}

TEST_F(PanelLinkTest, FailedAndEmptyReadsAreTriedAgain) {
    link.ReadWait = 20;
    link.StartReading();
    Send({});
    Send({0, 1, 2, 3});
    // Longer than any read: the first one fails, the second gives a rest that is no report.
    Send(std::vector<uint8_t>(67));
    Send({0, 4, 5, 6});
    Await(2);
    EXPECT_EQ(seen, (Reports{{0, 1, 2, 3}, {0, 4, 5, 6}}));
}

// Processor time of this process, in milliseconds.
DWORD SpentMs() {
    FILETIME created, ended, kernel, user;
    GetProcessTimes(GetCurrentProcess(), &created, &ended, &kernel, &user);
    return (kernel.dwLowDateTime + user.dwLowDateTime) / 10000;
}

TEST_F(PanelLinkTest, ADeviceThatIsGoneKeepsNoProcessorBusy) {
    link.StartReading();
    Send({0, 1, 2, 3});
    Await(1);
    device = {};
    const DWORD before = SpentMs();
    Sleep(1000);
    EXPECT_LT(SpentMs() - before, 200u) << "ms of 1000: the reader spins";
    StopAtOnce();
}

TEST_F(PanelLinkTest, ADeviceThatFailsOverAndOverKeepsNoProcessorBusy) {
    char empty[MAX_PATH] = "";
    ASSERT_NE(GetTempFileNameA(".", "rdr", 0, empty), 0u);
    link.DeviceAddress = empty;  // each read ends at the end of the file
    link.StartReading();
    const DWORD before = SpentMs();
    Sleep(500);
    EXPECT_LT(SpentMs() - before, 100u) << "ms of 500: the reader spins";
    StopAtOnce();
    DeleteFileA(empty);
}

TEST_F(PanelLinkTest, NothingComesAfterStopReading) {
    link.StartReading();
    Send({0, 1, 2, 3});
    Sleep(200);  // The report is posted by then, and the next read waits.
    StopAtOnce();
    loop.RunPending();
    EXPECT_EQ(seen, Reports{});
}

// A panel that takes as many milliseconds for a report as its second byte says, or never takes it.
struct PanelWriterTest : testing::Test {
    static constexpr uint8_t kNever = 0xFF;

    static BOOLEAN WINAPI Write(HANDLE handle, PVOID report, ULONG size) {
        const auto pause = static_cast<const uint8_t*>(report)[1];
        Sleep(pause == kNever ? INFINITE : pause);
        DWORD count = 0;
        return WriteFile(handle, report, size, &count, nullptr) != 0;
    }
    static BOOLEAN WINAPI Read(HANDLE, PVOID report, ULONG) {
        static_cast<uint8_t*>(report)[1] = 7;
        return TRUE;
    }

    PanelWriterTest() {
        library->setFeature = Write;
        library->getFeature = Read;
        handle = hid.Open(kPipe);
    }
    void Set(uint8_t milliseconds, uint8_t value, uint8_t id = 0) {
        const uint8_t report[] = {id, milliseconds, value};
        EXPECT_TRUE(hid.SetFeature(handle, report));
    }
    // The values that have reached the panel.
    std::string Taken() const {
        std::string values;
        std::array<char, 3> report{};
        DWORD waiting = 0, count = 0;
        while (PeekNamedPipe(device.Get(), nullptr, 0, nullptr, &waiting, nullptr) && waiting > 0) {
            ReadFile(device.Get(), report.data(), report.size(), &count, nullptr);
            values += report[2];
        }
        return values;
    }
    template <class Act>
    static ULONGLONG Took(Act act) {
        const ULONGLONG start = GetTickCount64();
        act();
        return GetTickCount64() - start;
    }

    Win32Handle device{
        CreateNamedPipeA(kPipe, PIPE_ACCESS_DUPLEX, PIPE_TYPE_MESSAGE, 1, 4096, 4096, 0, nullptr)};
    std::shared_ptr<Win32HidLibrary> library = std::make_shared<Win32HidLibrary>();
    Win32Hid hid{library};
    uintptr_t handle = 0;
};

TEST_F(PanelWriterTest, ASlowPanelHoldsNobodyUpAndGetsTheLatest) {
    EXPECT_LT(Took([this] {
                  for (const uint8_t value : {'1', '2', '3', '4', '5', '6', '7', '8'}) {
                      Set(100, value);
                      Sleep(10);
                  }
              }),
              300u);
    std::array<uint8_t, 2> positions{};
    EXPECT_TRUE(hid.GetFeature(handle, positions));
    EXPECT_EQ(positions[1], 7);
    EXPECT_EQ(Taken(), "18") << "what the panel is read for comes after what waits";
    Set(50, 'a');
    Set(50, 'b', 1);
    hid.Close(handle);
    EXPECT_EQ(Taken(), "ab") << "so does its end";
}

TEST_F(PanelWriterTest, APanelThatHangsIsWaitedForOnce) {
    Set(kNever, 'x');
    std::array<uint8_t, 2> positions{};
    EXPECT_LT(Took([&] { EXPECT_FALSE(hid.GetFeature(handle, positions)); }), 2000u);
    EXPECT_LT(Took([&] {
                  for (int i = 0; i < 1000; ++i) Set(0, 'y');
                  EXPECT_FALSE(hid.GetFeature(handle, positions));
                  hid.Close(handle);
              }),
              500u);
}

TEST(Win32TrayTest, IconComesBack) {
    Win32Loop loop;
    Win32Tray tray;
    TrayRecord record{.id = 7, .flags = NIF_MESSAGE | NIF_TIP, .callbackMessage = 512, .tip = "T"};
    NOTIFYICONDATAA icon{};
    icon.cbSize = sizeof icon;
    icon.hWnd = FindWindowW(L"OrvoTray", nullptr);
    icon.uID = record.id;
    ASSERT_TRUE(tray.NotifyIcon(NIM_ADD, record)) << "there is no task bar";

    ASSERT_TRUE(Shell_NotifyIconA(NIM_DELETE, &icon));
    EXPECT_TRUE(tray.NotifyIcon(NIM_MODIFY, record)) << "a change adds an icon that is not there";
    ASSERT_TRUE(Shell_NotifyIconA(NIM_DELETE, &icon));
    PostMessageW(icon.hWnd, RegisterWindowMessageW(L"TaskbarCreated"), 0, 0);
    loop.RunPending();
    EXPECT_TRUE(Shell_NotifyIconA(NIM_MODIFY, &icon));

    EXPECT_TRUE(tray.NotifyIcon(NIM_DELETE, record));
    EXPECT_FALSE(tray.NotifyIcon(NIM_MODIFY, record)) << "no longer wanted";
}

TEST(Win32HiddenWindowTest, RequestToCloseDoesNothing) {
    Win32Loop loop;
    const Win32Tray tray;
    const HWND windows[] = {FindWindowW(L"OrvoTray", nullptr),
                            FindWindowExW(HWND_MESSAGE, nullptr, L"OrvoLoop", nullptr)};
    for (const HWND window : windows) {
        ASSERT_TRUE(IsWindow(window));
        SendMessageW(window, WM_CLOSE, 0, 0);
        PostMessageW(window, WM_SYSCOMMAND, SC_CLOSE, 0);
        loop.RunPending();
        EXPECT_TRUE(IsWindow(window));
    }
    bool ran = false;
    loop.Post([&] { ran = true; });
    loop.RunUntil([&] { return ran; });
}

TEST(Win32PanelReaderTest, ItsProcessorsAreAmongThoseOfTheProcess) {
    DWORD_PTR own = 0, system = 0;
    ASSERT_TRUE(GetProcessAffinityMask(GetCurrentProcess(), &own, &system));
    const DWORD_PTR first = own & (~own + 1);
    const auto option = static_cast<int32_t>(first);
    constexpr int32_t kNone = 0x40000000;
    const struct {
        int32_t option;
        DWORD_PTR used;
    } cases[] = {{option, first}, {option | kNone, first}, {kNone, own}, {-1, own}};
    for (const auto& each : cases) {
        const Win32Handle device(
            CreateNamedPipeA(kPipe, PIPE_ACCESS_DUPLEX, PIPE_TYPE_MESSAGE, 1, 64, 64, 0, nullptr));
        Win32Handle end(CreateFileA(kPipe, GENERIC_READ | GENERIC_WRITE, 0, nullptr, OPEN_EXISTING,
                                    FILE_FLAG_OVERLAPPED, nullptr));
        std::atomic<DWORD_PTR> used = 0;
        const Win32PanelReader reader(std::move(end), {.affinity = each.option}, [&](auto) {
            used = SetThreadAffinityMask(GetCurrentThread(), own);
        });
        DWORD count = 0;
        WriteFile(device.Get(), "x", 1, &count, nullptr);
        EXPECT_TRUE(Until(2000, [&] { return used != 0; }));
        EXPECT_EQ(used, each.used) << each.option;
    }
}

// What other programs do to files of the program.
struct FilesTest : testing::Test {
    FilesTest() {
        wchar_t temp[MAX_PATH];
        GetTempPathW(MAX_PATH, temp);
        folder = std::filesystem::path(temp) /
                 (L"orvo \u0391\u0392 " + std::to_wstring(GetCurrentProcessId()));
        std::filesystem::create_directories(folder);
        name = ReachableFolder(folder.wstring());
    }
    ~FilesTest() override {
        SetCurrentDirectoryW(folder.parent_path().c_str());
        std::error_code ignored;
        std::filesystem::remove_all(folder, ignored);
    }

    void Put(const std::string& content) const {
        std::ofstream(folder / "Orvo.ini", std::ios::binary) << content;
    }
    std::string Look() const {
        std::ifstream file(folder / "Orvo.ini", std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

    std::filesystem::path folder;  // has letters that the code page lacks
    std::string name;
    Win32Ini ini;
    Win32Files files;
    IniFiles both{ini, files};
};

TEST_F(FilesTest, FolderWithLettersBeyondTheCodePageIsReached) {
    const auto byShortName = ByShortName(folder.wstring());
    const auto byCurrentFolder = ByCurrentFolder(folder.wstring());
    ASSERT_TRUE(byShortName && byCurrentFolder);
    EXPECT_EQ(name, *byShortName);
    for (const std::string& each : {*byShortName, *byCurrentFolder}) {
        Put("[A]\r\nx=1\r\n");
        const std::string path = each + "\\Orvo.ini";
        EXPECT_TRUE(both.Save(path, "A", [](IniSection& keys) { return keys.Set("x", "2"); }));
        EXPECT_EQ(Look(), "[A]\r\nx=2\r\n") << each;
        EXPECT_EQ(FullPath(path), (folder / "Orvo.ini").wstring());
        std::filesystem::remove(folder / "Orvo.ini");
        EXPECT_FALSE(files.Exists(path)) << each;
        EXPECT_TRUE(both.Save(path, "A", [](IniSection& keys) { return keys.Set("x", "3"); }));
        EXPECT_EQ(Look(), "[A]\r\nx=3\r\n") << each;
    }
}

TEST_F(FilesTest, FileThatAnotherProgramHasIsHeld) {
    const std::string path = name + "\\Orvo.ini", text = "[A]\r\nx=1\r\n";
    Put(text);
    const auto save = [&] {
        return both.Save(path, "A", [](IniSection& keys) { return keys.Set("x", "2"); });
    };
    for (const DWORD access : {DWORD{GENERIC_READ}, DWORD{GENERIC_WRITE}}) {
        const Win32Handle other(CreateFileW((folder / "Orvo.ini").c_str(), access,
                                            access == GENERIC_READ ? 0 : FILE_SHARE_READ, nullptr,
                                            OPEN_EXISTING, 0, nullptr));
        ASSERT_TRUE(other);
        EXPECT_FALSE(both.Read(path)) << access;
        EXPECT_FALSE(save());
    }
    SetFileAttributesW((folder / "Orvo.ini").c_str(), FILE_ATTRIBUTE_READONLY);
    EXPECT_FALSE(save()) << "the user has locked it";
    EXPECT_NE(files.LastProblem(), "");
    EXPECT_FALSE(std::filesystem::exists(folder / "Orvo.ini.new"));
    SetFileAttributesW((folder / "Orvo.ini").c_str(), FILE_ATTRIBUTE_NORMAL);
    std::filesystem::create_directory(folder / "Orvo.ini.new");
    EXPECT_EQ(Look(), text);
    EXPECT_TRUE(save()) << "also with a folder where the copy would be";
    EXPECT_EQ(Look(), "[A]\r\nx=2\r\n");
    EXPECT_FALSE(std::filesystem::exists(folder / "Orvo.ini.new2"));
}

// Its keys can't be named, and so not be deleted, by 8-bit text.
TEST_F(FilesTest, ListOf16BitTextIsReadAndAddedTo) {
    const auto bytes = [](const std::wstring& text) {
        return std::string(reinterpret_cast<const char*>(text.data()), text.size() * 2);
    };
    const std::wstring head = L"\xFEFF[Aircrafts]\r\n";
    std::wstring list;
    for (int i = 0; i < 1000; ++i) list += L"\u0391\u0392 " + std::to_wstring(i) + L"=Jet\r\n";
    Put(bytes(head + L"Baron=A\r\nBARON=B\r\n" + list));
    Win32Clock clock;
    ProfileStore store(ini, files, clock, name);
    store.LoadAircraftList();
    EXPECT_EQ(store.ProfileOfAircraft("?? 999"), "Jet");
    store.AddAircraft("One more", "Default");
    EXPECT_TRUE(store.SaveAircraftList());
    EXPECT_EQ(Look(), bytes(head + list + L"Baron=A\r\nOne more=Default\r\n"))
        << "of two spellings the first counts";
}

TEST(Win32KeyboardTest, RecordsReachTheWindowWithTheFocusInOrder) {
    const TypingField field;
    ASSERT_TRUE(field.TakeFocus());
    struct Case {
        std::vector<uint16_t> down;  // They go up in reverse.
        std::string keys, text;
    };
    const std::vector<Case> cases = {
        {{'A'}, "+65 -65", "a"},
        {{VK_SHIFT, 'A'}, "+16 +65 -65 -16", "A"},
        {{VK_SHIFT, VK_CONTROL, VK_TAB, 'B'}, "+16 +17 +9 +66 -66 -9 -17 -16", ""},
        {{VK_TAB, VK_RETURN}, "+9 +13 -13 -9", "\t\r\n"},
        {{VK_F10}, "+121 -121", ""},
        {{VK_F16}, "+127 -127", ""},
        {{VK_LEFT}, "+37 -37", ""},
    };
    Win32Keyboard keyboard;
    for (const Case& each : cases) {
        std::vector<KeyRecord> records;
        for (const uint16_t key : each.down) records.push_back({key, false});
        for (size_t i = each.down.size(); i-- > 0;) records.push_back({each.down[i], true});
        field.Clear();
        keyboard.SendInput(records);
        EXPECT_TRUE(Until(2000, [&] { return field.Keys() == each.keys; })) << field.Keys();
        EXPECT_EQ(field.Text(), each.text) << each.keys;
    }
}

TEST(Win32LoopTest, ALoopThatWaitsKeepsNoProcessorBusyAndWakesForOtherThreads) {
    Win32Loop loop;
    int ticks = 0;
    bool quick = false;
    loop.StartTimer(450, [&] { ++ticks; });
    std::thread other([&] {
        Sleep(1000);
        loop.Post([&] { loop.StartTimer(20, [&] { quick = true; }); });
    });
    const DWORD before = SpentMs();
    const ULONGLONG start = GetTickCount64();
    loop.RunUntil([&] { return quick; });
    EXPECT_LT(GetTickCount64() - start, 1250u) << "not with the slow timer's next tick";
    EXPECT_LT(SpentMs() - before, 200u) << "ms of 1000: the loop spins";
    EXPECT_EQ(ticks, 2);
    other.join();
}

TEST(Win32LoopTest, TasksWithoutEndLetInputAndPaintingThroughAndTicksKeepTheirPace) {
    Win32Loop loop;
    int paints = 0, keys = 0;
    auto last = std::chrono::steady_clock::now();
    std::vector<std::chrono::steady_clock::duration> intervals;
    const Win32HiddenWindow window(L"OrvoAdapterTest", nullptr,
                                   [&](auto own, auto message, auto... rest) {
                                       if (message == WM_PAINT) ++paints;
                                       if (message == WM_KEYDOWN) ++keys;
                                       return DefWindowProcW(own, message, rest...);
                                   });
    SetWindowPos(window.Get(), HWND_TOPMOST, 0, 0, 50, 50, SWP_SHOWWINDOW);
    SetForegroundWindow(window.Get());
    std::function<void()> again = [&] { loop.Post(again); };
    loop.Post(again);
    loop.StartTimer(10, [&] {
        const auto now = std::chrono::steady_clock::now();
        intervals.push_back(now - std::exchange(last, now));
        InvalidateRect(window.Get(), nullptr, FALSE);
        if (intervals.size() % 10 == 0) keybd_event('A', 0, 0, 0);
        if (intervals.size() % 10 == 5) keybd_event('A', 0, KEYEVENTF_KEYUP, 0);
    });
    const ULONGLONG end = GetTickCount64() + 10'000;
    loop.RunUntil([&] { return intervals.size() >= 100 || GetTickCount64() > end; });
    ASSERT_GE(intervals.size(), 100u);
    // The middle one, so that a busy machine does no harm.
    std::nth_element(intervals.begin(), intervals.begin() + 50, intervals.end());
    EXPECT_LT(intervals[50], std::chrono::milliseconds(15));
    EXPECT_GE(paints, 50);
    EXPECT_GE(keys, 5);
}

}  // namespace
