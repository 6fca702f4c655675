#include "platform/win32/Win32Process.h"

#include "platform/win32/Win32Handle.h"
#include "platform/win32/Win32Path.h"

Win32Process::~Win32Process() {
    for (const uintptr_t claim : claims_) CloseHandle(ToHandle(claim));
}

uint32_t Win32Process::GetCurrentProcessId() { return ::GetCurrentProcessId(); }

uint32_t Win32Process::ProcessOfWindow(uintptr_t window) {
    DWORD process = 0;
    GetWindowThreadProcessId(ToWindow(window), &process);
    return process;
}

uintptr_t Win32Process::OpenProcess(uint32_t access, uint32_t processId) {
    return ToNumber(::OpenProcess(access, FALSE, processId));
}

bool Win32Process::SetPriorityClass(uintptr_t process, uint32_t priorityClass) {
    return ::SetPriorityClass(ToHandle(process), priorityClass) != 0;
}

uint32_t Win32Process::GetPriorityClass(uintptr_t process) {
    return ::GetPriorityClass(ToHandle(process));
}

void Win32Process::CloseProcess(uintptr_t process) {
    if (process != 0) CloseHandle(ToHandle(process));
}

bool Win32Process::GetProcessAffinityMask(uint64_t& mask) {
    DWORD_PTR own = 0;
    DWORD_PTR system = 0;
    if (!::GetProcessAffinityMask(GetCurrentProcess(), &own, &system)) return false;
    mask = own;
    return true;
}

bool Win32Process::SetProcessAffinityMask(uint64_t mask) {
    return ::SetProcessAffinityMask(GetCurrentProcess(), mask) != 0;
}

bool Win32Process::ClaimSingleInstance(const std::string& name) {
    Win32Handle mutex(CreateMutexA(nullptr, FALSE, ("Local\\" + name).c_str()));
    if (!mutex || GetLastError() == ERROR_ALREADY_EXISTS) return false;
    claims_.push_back(ToNumber(mutex.Release()));
    return true;
}

std::string Win32Process::ProgramFolder() {
    std::wstring path(MAX_PATH, L'\0');
    DWORD length = GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
    while (length == path.size()) {
        path.resize(path.size() * 2);
        length = GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
    }
    path.resize(length);
    return ReachableFolder(path.substr(0, path.find_last_of(L'\\')));
}
