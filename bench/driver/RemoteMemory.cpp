#include "bench/driver/RemoteMemory.h"

namespace bench {

namespace {

DWORD ProcessOf(HWND window) {
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    return process;
}

}  // namespace

RemoteMemory::RemoteMemory(HWND window, size_t size)
    : process_(OpenProcess(PROCESS_VM_OPERATION | PROCESS_VM_READ | PROCESS_VM_WRITE, FALSE,
                           ProcessOf(window))) {
    if (process_) {
        memory_ = VirtualAllocEx(process_, nullptr, size, MEM_COMMIT | MEM_RESERVE, PAGE_READWRITE);
    }
}

RemoteMemory::~RemoteMemory() {
    if (memory_) VirtualFreeEx(process_, memory_, 0, MEM_RELEASE);
    if (process_) CloseHandle(process_);
}

bool RemoteMemory::Read(void* to, size_t size) const {
    return memory_ && ReadProcessMemory(process_, memory_, to, size, nullptr);
}

bool RemoteMemory::Write(const void* from, size_t size) const {
    return memory_ && WriteProcessMemory(process_, memory_, from, size, nullptr);
}

}  // namespace bench
