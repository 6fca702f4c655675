#pragma once

#include "platform/IpcChannel.h"

class Win32Ipc final : public IpcChannel {
  public:
    uintptr_t FindWindowExA(const std::string& className) override;
    uint32_t RegisterWindowMessageA(const std::string& name) override;
    uint32_t GetCurrentProcessId() override;
    uint16_t GlobalAddAtomA(const std::string& name) override;
    void GlobalDeleteAtom(uint16_t atom) override;
    uintptr_t CreateFileMappingA(const std::string& name, uint32_t size) override;
    uint8_t* MapViewOfFile(uintptr_t mapping) override;
    void UnmapViewOfFile(uint8_t* view) override;
    void CloseHandle(uintptr_t handle) override;
    uintptr_t SendMessageTimeoutA(uintptr_t window, uint32_t message, uintptr_t wParam,
                                  intptr_t lParam, uint32_t flags, uint32_t timeoutMs,
                                  uintptr_t& reply) override;
    bool UserWaits() override;
    uint32_t GetLastError() override;

  private:
    uint32_t lastError_ = 0;
};
