#pragma once

#include <cstdint>

#include "config/cSetupHolder.h"
#include "platform/ProcessPort.h"

inline constexpr int32_t kAutomaticAffinity = -1;

// Sets the priority class of a process: of `processId`, or of the process of `window` when that is
// 0, or of the current one when both are. Gives the class that the process has afterwards; 0 when
// it can't be opened at all.
uint32_t SetProcessPriority(ProcessPort& process, uint32_t processId, uintptr_t window,
                            uint32_t priorityClass);

// Processors for the program: `option` itself, or with -1 a choice from the `processMask` that it
// may use, which leaves the first ones to the simulator; all of them where none of the third to
// sixteenth is among them.
uint64_t ChooseAffinity(int32_t option, uint64_t processMask);

// Applies that choice to the current process. What the system refuses leaves it as it was.
void SetProcessAffinity(ProcessPort& process, int32_t option);

// Gives this process the priority and the processors that the options name.
void ApplyProcessSettings(ProcessPort& process, const cSetupHolder& setup);
