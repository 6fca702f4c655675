#include "platform/virtual/VirtualProcess.h"

uint32_t VirtualProcess::ProcessOfWindow(uintptr_t window) {
    const auto found = windows_.find(window);
    return found == windows_.end() ? 0 : found->second;
}

uintptr_t VirtualProcess::OpenProcess(uint32_t access, uint32_t processId) {
    if (refusedAccess_.contains(access) || !priorities_.contains(processId)) return 0;
    open_[nextHandle_] = processId;
    return nextHandle_++;
}

bool VirtualProcess::SetPriorityClass(uintptr_t process, uint32_t priorityClass) {
    const auto found = open_.find(process);
    if (faults_.Take(ProcessCall::SetPriorityClass) || found == open_.end()) return false;
    priorities_[found->second] = priorityClass;
    return true;
}

uint32_t VirtualProcess::GetPriorityClass(uintptr_t process) {
    const auto found = open_.find(process);
    if (faults_.Take(ProcessCall::GetPriorityClass) || found == open_.end()) return 0;
    return priorities_[found->second];
}

bool VirtualProcess::GetProcessAffinityMask(uint64_t& mask) {
    if (faults_.Take(ProcessCall::GetProcessAffinityMask)) return false;
    mask = affinity_;
    return true;
}

bool VirtualProcess::SetProcessAffinityMask(uint64_t mask) {
    if (faults_.Take(ProcessCall::SetProcessAffinityMask) || mask == 0) return false;
    affinity_ = mask;
    return true;
}

uint32_t VirtualProcess::Priority(uint32_t processId) const {
    const auto found = priorities_.find(processId);
    return found == priorities_.end() ? 0 : found->second;
}
