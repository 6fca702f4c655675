#include "core/ProcessSettings.h"

namespace {

constexpr uint32_t kSetAndQuery = 0x600;
constexpr uint32_t kQuery = 0x400;
constexpr uint64_t kThirdToSixteenth = 65532;

}  // namespace

uint32_t SetProcessPriority(ProcessPort& process, uint32_t processId, uintptr_t window,
                            uint32_t priorityClass) {
    if (processId == 0) {
        processId = window != 0 ? process.ProcessOfWindow(window) : process.GetCurrentProcessId();
    }
    uintptr_t handle = process.OpenProcess(kSetAndQuery, processId);
    if (handle) {
        process.SetPriorityClass(handle, priorityClass);
    } else {
        handle = process.OpenProcess(kQuery, processId);
    }
    if (!handle) return 0;
    const uint32_t present = process.GetPriorityClass(handle);
    process.CloseProcess(handle);
    return present;
}

uint64_t ChooseAffinity(int32_t option, uint64_t processMask) {
    if (option != kAutomaticAffinity) return static_cast<uint32_t>(option);
    if (processMask >= 15) {
        const uint64_t chosen = processMask & kThirdToSixteenth;
        return chosen != 0 ? chosen : processMask;
    }
    if (processMask >= 7) return 4;
    return processMask >= 3 ? 2 : 1;
}

void SetProcessAffinity(ProcessPort& process, int32_t option) {
    uint64_t mask = 0;
    if (!process.GetProcessAffinityMask(mask) && option == kAutomaticAffinity) return;
    process.SetProcessAffinityMask(ChooseAffinity(option, mask));
}

void ApplyProcessSettings(ProcessPort& process, const cSetupHolder& setup) {
    SetProcessPriority(process, 0, 0, static_cast<uint32_t>(setup.OrvoPriority));
    SetProcessAffinity(process, setup.OrvoAffinity);
}
