#pragma once

#include <cstdint>
#include <string>

// The platform calls that the FSUIPC channel is made of, one to one. Handles and windows are plain
// numbers, 0 for none. An operation that fails gives 0 and leaves its error in GetLastError.
class IpcChannel {
  public:
    virtual ~IpcChannel() = default;

    // A top-level window of this class.
    virtual uintptr_t FindWindowExA(const std::string& className) = 0;
    virtual uint32_t RegisterWindowMessageA(const std::string& name) = 0;
    virtual uint32_t GetCurrentProcessId() = 0;
    virtual uint16_t GlobalAddAtomA(const std::string& name) = 0;
    virtual void GlobalDeleteAtom(uint16_t atom) = 0;

    // On the paging file, read-write. GetLastError gives 183 when the name was there already, and
    // 0 when it wasn't.
    virtual uintptr_t CreateFileMappingA(const std::string& name, uint32_t size) = 0;

    // The whole mapping, for writing. The address stays valid until UnmapViewOfFile.
    virtual uint8_t* MapViewOfFile(uintptr_t mapping) = 0;
    virtual void UnmapViewOfFile(uint8_t* view) = 0;
    virtual void CloseHandle(uintptr_t handle) = 0;

    // Blocks for up to `timeoutMs`. Gives non-zero when the window has answered, with its answer in
    // `reply`.
    virtual uintptr_t SendMessageTimeoutA(uintptr_t window, uint32_t message, uintptr_t wParam,
                                          intptr_t lParam, uint32_t flags, uint32_t timeoutMs,
                                          uintptr_t& reply) = 0;

    // Whether the user has pressed a key or clicked, and the thread hasn't come to it yet.
    virtual bool UserWaits() = 0;

    // Error of this channel's last call; 0 when that call reported none.
    virtual uint32_t GetLastError() = 0;
};
