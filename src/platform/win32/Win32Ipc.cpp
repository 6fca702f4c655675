#include "platform/win32/Win32Ipc.h"

#include "platform/win32/Win32Handle.h"

namespace {

// Takes the thread's error of one call: other calls of the program use the same place.
class ErrorOfCall {
  public:
    explicit ErrorOfCall(uint32_t& error) : error_(error) { SetLastError(0); }
    ErrorOfCall(const ErrorOfCall&) = delete;
    ErrorOfCall& operator=(const ErrorOfCall&) = delete;
    ~ErrorOfCall() { error_ = ::GetLastError(); }

  private:
    uint32_t& error_;
};

}  // namespace

uintptr_t Win32Ipc::FindWindowExA(const std::string& className) {
    const ErrorOfCall error(lastError_);
    return ToNumber(::FindWindowExA(nullptr, nullptr, className.c_str(), nullptr));
}

uint32_t Win32Ipc::RegisterWindowMessageA(const std::string& name) {
    const ErrorOfCall error(lastError_);
    return ::RegisterWindowMessageA(name.c_str());
}

uint32_t Win32Ipc::GetCurrentProcessId() {
    const ErrorOfCall error(lastError_);
    return ::GetCurrentProcessId();
}

uint16_t Win32Ipc::GlobalAddAtomA(const std::string& name) {
    const ErrorOfCall error(lastError_);
    return ::GlobalAddAtomA(name.c_str());
}

void Win32Ipc::GlobalDeleteAtom(uint16_t atom) {
    const ErrorOfCall error(lastError_);
    ::GlobalDeleteAtom(atom);
}

uintptr_t Win32Ipc::CreateFileMappingA(const std::string& name, uint32_t size) {
    const ErrorOfCall error(lastError_);
    return ToNumber(
        ::CreateFileMappingA(INVALID_HANDLE_VALUE, nullptr, PAGE_READWRITE, 0, size, name.c_str()));
}

uint8_t* Win32Ipc::MapViewOfFile(uintptr_t mapping) {
    const ErrorOfCall error(lastError_);
    return static_cast<uint8_t*>(::MapViewOfFile(ToHandle(mapping), FILE_MAP_WRITE, 0, 0, 0));
}

void Win32Ipc::UnmapViewOfFile(uint8_t* view) {
    const ErrorOfCall error(lastError_);
    ::UnmapViewOfFile(view);
}

void Win32Ipc::CloseHandle(uintptr_t handle) {
    const ErrorOfCall error(lastError_);
    ::CloseHandle(ToHandle(handle));
}

uintptr_t Win32Ipc::SendMessageTimeoutA(uintptr_t window, uint32_t message, uintptr_t wParam,
                                        intptr_t lParam, uint32_t flags, uint32_t timeoutMs,
                                        uintptr_t& reply) {
    DWORD_PTR answer = 0;
    const ErrorOfCall error(lastError_);
    const auto answered = static_cast<uintptr_t>(::SendMessageTimeoutA(
        ToWindow(window), message, wParam, lParam, flags, timeoutMs, &answer));
    if (answered != 0) reply = answer;
    return answered;
}

bool Win32Ipc::UserWaits() { return HIWORD(GetQueueStatus(QS_KEY | QS_MOUSEBUTTON)) != 0; }

uint32_t Win32Ipc::GetLastError() { return lastError_; }
