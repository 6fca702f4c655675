#pragma once

#include <map>
#include <set>

#include "platform/ProcessPort.h"
#include "platform/virtual/Faults.h"

enum class ProcessCall : uint8_t {
    SetPriorityClass,
    GetPriorityClass,
    GetProcessAffinityMask,
    SetProcessAffinityMask,
};

// A machine with a few processes, of which one is the program.
class VirtualProcess : public ProcessPort {
  public:
    static constexpr uint32_t kProcessId = 0x1A2B;
    static constexpr uint32_t kNormalPriority = 0x20;

    uint32_t GetCurrentProcessId() override { return kProcessId; }
    uint32_t ProcessOfWindow(uintptr_t window) override;
    uintptr_t OpenProcess(uint32_t access, uint32_t processId) override;
    bool SetPriorityClass(uintptr_t process, uint32_t priorityClass) override;
    uint32_t GetPriorityClass(uintptr_t process) override;
    void CloseProcess(uintptr_t process) override { open_.erase(process); }
    bool GetProcessAffinityMask(uint64_t& mask) override;
    bool SetProcessAffinityMask(uint64_t mask) override;
    bool ClaimSingleInstance(const std::string& name) override {
        return instances_.insert(name).second;
    }
    std::string ProgramFolder() override { return folder_; }

    void AddProcess(uint32_t processId, uint32_t priority = kNormalPriority) {
        priorities_[processId] = priority;
    }
    void SetWindowProcess(uintptr_t window, uint32_t processId) { windows_[window] = processId; }
    // Opening with exactly this access mask is refused from here on.
    void RefuseAccess(uint32_t access) { refusedAccess_.insert(access); }
    void Refuse(ProcessCall call, int times = Faults<ProcessCall>::kAlways) {
        faults_.Refuse(call, times);
    }
    void SetProgramFolder(const std::string& folder) { folder_ = folder; }
    void SetAffinity(uint64_t mask) { affinity_ = mask; }
    // An instance of another program that holds this name.
    void HoldInstance(const std::string& name) { instances_.insert(name); }
    // The programs that held names have ended.
    void ReleaseInstances() { instances_.clear(); }

    // 0 for a process that isn't there.
    uint32_t Priority(uint32_t processId) const;
    uint64_t Affinity() const { return affinity_; }
    size_t OpenCount() const { return open_.size(); }

  private:
    std::map<uint32_t, uint32_t> priorities_{{kProcessId, kNormalPriority}};
    std::map<uintptr_t, uint32_t> windows_;
    std::map<uintptr_t, uint32_t> open_;
    uintptr_t nextHandle_ = 0x80;
    std::set<uint32_t> refusedAccess_;
    uint64_t affinity_ = 0xF;
    std::string folder_ = "C:\\Orvo";
    std::set<std::string> instances_;
    Faults<ProcessCall> faults_;
};
