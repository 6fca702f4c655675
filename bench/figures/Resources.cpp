#include "bench/figures/Resources.h"

// These count on windows.h.
#include <algorithm>
#include <psapi.h>
#include <vector>
#include <winternl.h>

namespace bench {

namespace {

struct Search {
    DWORD process;
    size_t windows;
};

BOOL CALLBACK CountChild(HWND, LPARAM search) {
    ++reinterpret_cast<Search*>(search)->windows;
    return TRUE;
}

BOOL CALLBACK CountWindow(HWND window, LPARAM parameter) {
    auto& search = *reinterpret_cast<Search*>(parameter);
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    if (process != search.process) return TRUE;
    ++search.windows;
    EnumChildWindows(window, CountChild, parameter);
    return TRUE;
}

size_t WindowsOf(DWORD process) {
    Search search{process, 0};
    const auto parameter = reinterpret_cast<LPARAM>(&search);
    EnumWindows(CountWindow, parameter);
    for (HWND unseen = nullptr;
         (unseen = FindWindowExW(HWND_MESSAGE, unseen, nullptr, nullptr)) != nullptr;) {
        CountWindow(unseen, parameter);
    }
    return search.windows;
}

uint64_t PrivateBytesOf(HANDLE process) {
    PROCESS_MEMORY_COUNTERS_EX memory{};
    GetProcessMemoryInfo(process, reinterpret_cast<PROCESS_MEMORY_COUNTERS*>(&memory),
                         sizeof memory);
    // The same under another name; Wine only knows the latter.
    return memory.PrivateUsage != 0 ? memory.PrivateUsage : memory.PagefileUsage;
}

// From the list of the whole system, where the process itself doesn't tell, as under Wine.
size_t HandlesOf(HANDLE process, DWORD id) {
    DWORD count = 0;
    if (GetProcessHandleCount(process, &count) && count != 0) return count;

    std::vector<char> list(1 << 20);
    if (NtQuerySystemInformation(SystemHandleInformation, list.data(),
                                 static_cast<ULONG>(list.size()), nullptr) != 0) {
        return 0;
    }
    const auto& all = *reinterpret_cast<const SYSTEM_HANDLE_INFORMATION*>(list.data());
    return static_cast<size_t>(
        std::count_if(all.Handle, all.Handle + all.Count,
                      [id](const SYSTEM_HANDLE_ENTRY& handle) { return handle.OwnerPid == id; }));
}

// From the table that each process has of them under Wine, which tells nothing else.
size_t GdiObjectsOf(HANDLE process) {
    if (const DWORD count = GetGuiResources(process, GR_GDIOBJECTS)) return count;

    constexpr size_t kTableInPeb = 0xF8;
    struct Entry {
        ULONG64 object;
        ULONG owner;
        USHORT unique;
        UCHAR type;
        UCHAR flags;
        ULONG64 user;
    };
    PROCESS_BASIC_INFORMATION basic{};
    const char* table = nullptr;
    std::vector<Entry> entries(0x4000);
    if (NtQueryInformationProcess(process, ProcessBasicInformation, &basic, sizeof basic,
                                  nullptr) != 0 ||
        !ReadProcessMemory(process, reinterpret_cast<char*>(basic.PebBaseAddress) + kTableInPeb,
                           &table, sizeof table, nullptr) ||
        !ReadProcessMemory(process, table, entries.data(), entries.size() * sizeof(Entry),
                           nullptr)) {
        return 0;
    }
    size_t found = 0;
    for (const Entry& entry : entries) found += entry.type != 0;
    return found;
}

}  // namespace

Resources ResourcesOf(DWORD id) {
    Resources found;
    const HANDLE process = OpenProcess(PROCESS_QUERY_INFORMATION | PROCESS_VM_READ, FALSE, id);
    if (!process) return found;
    found.handles = HandlesOf(process, id);
    found.privateBytes = PrivateBytesOf(process);
    found.windows = WindowsOf(id);
    found.gdiObjects = GdiObjectsOf(process);
    CloseHandle(process);
    return found;
}

}  // namespace bench
