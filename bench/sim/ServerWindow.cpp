#include "bench/sim/ServerWindow.h"

#include <cstdint>
#include <span>
#include <utility>

namespace bench {

namespace {

constexpr UINT kShow = WM_APP;
constexpr UINT kStop = WM_APP + 1;
constexpr size_t kBlockSize = 32768;
constexpr char kOrderClass[] = "SimBenchOrders";

ServerWindow* Self(HWND window) {
    return reinterpret_cast<ServerWindow*>(GetWindowLongPtrA(window, GWLP_USERDATA));
}

HWND MakeWindow(const char* className, WNDPROC procedure, ServerWindow* self) {
    WNDCLASSA windowClass{};
    windowClass.lpfnWndProc = procedure;
    windowClass.hInstance = GetModuleHandleA(nullptr);
    windowClass.lpszClassName = className;
    RegisterClassA(&windowClass);
    const HWND window = CreateWindowExA(0, className, "Simulator", WS_OVERLAPPED, 0, 0, 0, 0,
                                        nullptr, nullptr, windowClass.hInstance, nullptr);
    if (window) SetWindowLongPtrA(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(self));
    return window;
}

}  // namespace

ServerWindow::ServerWindow(SimState& state, std::mutex& lock, std::string className)
    : state_(state), lock_(lock), className_(std::move(className)) {}

bool ServerWindow::Run() {
    exchange_ = RegisterWindowMessageA("FSASMLIB:IPC");
    {
        const std::lock_guard hold(lock_);
        orders_ = MakeWindow(kOrderClass, OrderMessage, this);
        if (!orders_ || !Create()) return false;
    }
    up_.notify_all();
    MSG message;
    while (GetMessageA(&message, nullptr, 0, 0) > 0) DispatchMessageA(&message);
    return true;
}

void ServerWindow::WaitUntilUp() {
    std::unique_lock hold(lock_);
    up_.wait(hold, [this] { return window_ != nullptr; });
}

bool ServerWindow::Show(bool visible) { return SendMessageA(orders_, kShow, visible, 0) != 0; }

void ServerWindow::Stop() {
    {
        const std::lock_guard hold(lock_);
        stopping_ = true;
    }
    EndSilence();
    PostMessageA(orders_, kStop, 0, 0);
}

bool ServerWindow::Create() {
    if (window_) return false;
    window_ = MakeWindow(className_.c_str(), ServeMessage, this);
    return window_ != nullptr;
}

LRESULT CALLBACK ServerWindow::ServeMessage(HWND window, UINT message, WPARAM wParam,
                                            LPARAM lParam) {
    ServerWindow* self = Self(window);
    if (self && message == self->exchange_) return self->Serve(wParam);
    return DefWindowProcA(window, message, wParam, lParam);
}

LRESULT CALLBACK ServerWindow::OrderMessage(HWND window, UINT message, WPARAM wParam,
                                            LPARAM lParam) {
    ServerWindow* self = Self(window);
    if (self && message == kShow) {
        if (wParam) return self->Create();
        return DestroyWindow(std::exchange(self->window_, nullptr));
    }
    if (self && message == kStop) PostQuitMessage(0);
    return DefWindowProcA(window, message, wParam, lParam);
}

LRESULT ServerWindow::Serve(WPARAM wParam) {
    std::unique_lock hold(lock_);
    if (state_.GetFault() == SimState::Fault::Silent) {
        silenceEnded_.wait(
            hold, [this] { return stopping_ || state_.GetFault() != SimState::Fault::Silent; });
        return 0;
    }
    char name[256] = "";
    // The client may send the atom with the sign of its 16 bits in the upper ones.
    if (!GlobalGetAtomNameA(LOWORD(wParam), name, sizeof name)) return 0;
    const HANDLE mapping = OpenFileMappingA(FILE_MAP_WRITE, FALSE, name);
    if (!mapping) return 0;
    void* view = MapViewOfFile(mapping, FILE_MAP_WRITE, 0, 0, kBlockSize);
    // A client that comes back needs the name, so nothing is kept for longer than need be.
    const auto close = [view, mapping] {
        if (view) UnmapViewOfFile(view);
        CloseHandle(mapping);
    };
    LRESULT reply = 0;
    bool scribbles = false;
    if (view) {
        const std::span block(static_cast<uint8_t*>(view), kBlockSize);
        state_.Aircraft().MoveTo(GetTickCount());
        reply = static_cast<LRESULT>(state_.Serve(block));
        scribbles = state_.GetFault() == SimState::Fault::Scribble;
        if (scribbles) scribbler_ = std::make_unique<Scribbler>(block, close);
    }
    if (!scribbles) close();
    return reply;
}

}  // namespace bench
