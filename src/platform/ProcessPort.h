#pragma once

#include <cstdint>
#include <string>

// This process and what the system knows of it.
class ProcessPort {
  public:
    virtual ~ProcessPort() = default;

    virtual uint32_t GetCurrentProcessId() = 0;
    // Process that a window belongs to, 0 if there is no such window.
    virtual uint32_t ProcessOfWindow(uintptr_t window) = 0;

    // Gives 0 when the process can't be opened with this access mask.
    virtual uintptr_t OpenProcess(uint32_t access, uint32_t processId) = 0;
    virtual bool SetPriorityClass(uintptr_t process, uint32_t priorityClass) = 0;
    // 0 when it can't be had.
    virtual uint32_t GetPriorityClass(uintptr_t process) = 0;
    virtual void CloseProcess(uintptr_t process) = 0;

    // Of the current process. False leaves `mask` as it was.
    virtual bool GetProcessAffinityMask(uint64_t& mask) = 0;
    virtual bool SetProcessAffinityMask(uint64_t mask) = 0;

    // True for the first program of the user's session that asks under this name, as long as it
    // lives; false for all others.
    virtual bool ClaimSingleInstance(const std::string& name) = 0;

    // Folder of the executable, without a separator at its end, in a form by which the other ports
    // reach it. A '?' in it, which no path may have, says that there is no such form.
    virtual std::string ProgramFolder() = 0;
};
