#pragma once

#include <vector>

#include "platform/ProcessPort.h"

class Win32Process final : public ProcessPort {
  public:
    Win32Process() = default;
    Win32Process(const Win32Process&) = delete;
    Win32Process& operator=(const Win32Process&) = delete;
    ~Win32Process() override;

    uint32_t GetCurrentProcessId() override;
    uint32_t ProcessOfWindow(uintptr_t window) override;
    uintptr_t OpenProcess(uint32_t access, uint32_t processId) override;
    bool SetPriorityClass(uintptr_t process, uint32_t priorityClass) override;
    uint32_t GetPriorityClass(uintptr_t process) override;
    void CloseProcess(uintptr_t process) override;
    bool GetProcessAffinityMask(uint64_t& mask) override;
    bool SetProcessAffinityMask(uint64_t mask) override;
    bool ClaimSingleInstance(const std::string& name) override;
    std::string ProgramFolder() override;

  private:
    std::vector<uintptr_t> claims_;
};
