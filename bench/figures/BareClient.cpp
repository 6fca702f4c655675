// The least that a client of the simulator can be: BareClient A|B|C|D OFFSET:SIZE... does one
// exchange of these reads every 10 ms, until it is killed. What Orvo takes is measured against it.
//   A  on the timer's own thread
//   B  on a thread whose message-only window a timer thread posts to
//   C  the same with a hidden top-level window, which is what a program with a window needs
//   D  on that window's thread, which waits for the timer and for messages at once

#include <windows.h>

#include <array>
#include <charconv>
#include <string_view>
#include <thread>
#include <vector>

#include "platform/win32/Win32Clock.h"
#include "platform/win32/Win32Ipc.h"
#include "simlink/channel/modFSUIPC.h"

namespace {

constexpr LONG kIntervalMs = 10;
constexpr DWORD kHighResolution = 0x00000002;  // not in all headers
constexpr UINT kDue = WM_APP;

struct Read {
    int32_t offset = 0;
    int32_t size = 0;
};

class Client {
  public:
    explicit Client(std::vector<Read> reads) : fsuipc_(ipc_, clock_), reads_(std::move(reads)) {}

    bool Open() {
        int32_t result = 0;
        return fsuipc_.FSUIPC_Open(0, result);
    }
    void Exchange() {
        int32_t result = 0;
        for (const Read& read : reads_) {
            fsuipc_.FSUIPC_Read(read.offset, read.size, values_.data(), result);
        }
        fsuipc_.FSUIPC_Process(result);
    }

  private:
    Win32Ipc ipc_;
    Win32Clock clock_;
    modFSUIPC fsuipc_;
    std::vector<Read> reads_;
    std::array<char, 32768> values_{};
};

Client* client = nullptr;

LRESULT CALLBACK Handle(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message != kDue) return DefWindowProcW(window, message, wParam, lParam);
    client->Exchange();
    return 0;
}

HWND MakeWindow(HWND parent) {
    WNDCLASSW windowClass{};
    windowClass.lpfnWndProc = Handle;
    windowClass.hInstance = GetModuleHandleW(nullptr);
    windowClass.lpszClassName = L"BareClient";
    RegisterClassW(&windowClass);
    return CreateWindowW(L"BareClient", L"BareClient", parent ? 0 : WS_OVERLAPPEDWINDOW, 0, 0, 700,
                         300, parent, nullptr, windowClass.hInstance, nullptr);
}

HANDLE StartTimer() {
    HANDLE timer = CreateWaitableTimerExW(nullptr, nullptr, kHighResolution, TIMER_ALL_ACCESS);
    if (!timer) timer = CreateWaitableTimerExW(nullptr, nullptr, 0, TIMER_ALL_ACCESS);
    LARGE_INTEGER first{};
    first.QuadPart = -10'000LL * kIntervalMs;
    SetWaitableTimer(timer, &first, kIntervalMs, nullptr, nullptr, FALSE);
    return timer;
}

[[noreturn]] void RunOnTimerThread() {
    const HANDLE timer = StartTimer();
    for (;;) {
        WaitForSingleObject(timer, INFINITE);
        client->Exchange();
    }
}

[[noreturn]] void RunByPosting(HWND window) {
    std::thread([window, timer = StartTimer()] {
        for (;;) {
            WaitForSingleObject(timer, INFINITE);
            PostMessageW(window, kDue, 0, 0);
        }
    }).detach();
    for (MSG message{};;) {
        GetMessageW(&message, nullptr, 0, 0);
        DispatchMessageW(&message);
    }
}

[[noreturn]] void RunByWaitingForBoth() {
    MakeWindow(nullptr);
    const HANDLE timer = StartTimer();
    for (MSG message{};;) {
        const DWORD what = MsgWaitForMultipleObjectsEx(1, &timer, INFINITE, QS_ALLINPUT, 0);
        if (what == WAIT_OBJECT_0) {
            client->Exchange();
        } else {
            while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) DispatchMessageW(&message);
        }
    }
}

Read ParseRead(std::string_view text) {
    Read read;
    const char* end = text.data() + text.size();
    const char* colon = std::from_chars(text.data(), end, read.offset, 16).ptr;
    if (colon != end) std::from_chars(colon + 1, end, read.size);
    return read;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 3) return 2;
    std::vector<Read> reads;
    for (int i = 2; i < argc; ++i) reads.push_back(ParseRead(argv[i]));
    Client bare(std::move(reads));
    client = &bare;
    if (!bare.Open()) return 1;
    switch (argv[1][0]) {
        case 'A':
            RunOnTimerThread();
        case 'B':
            RunByPosting(MakeWindow(HWND_MESSAGE));
        case 'C':
            RunByPosting(MakeWindow(nullptr));
        case 'D':
            RunByWaitingForBoth();
        default:
            return 2;
    }
}
