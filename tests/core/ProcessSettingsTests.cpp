#include <gtest/gtest.h>

#include "core/ProcessSettings.h"
#include "platform/virtual/VirtualProcess.h"

namespace {

TEST(ProcessSettingsTest, AffinityLeavesTheFirstProcessorsToTheSimulator) {
    const struct {
        int32_t option;
        uint64_t processMask;
        uint64_t chosen;
    } cases[] = {{-1, 0, 1},
                 {-1, 1, 1},
                 {-1, 2, 1},
                 {-1, 3, 2},
                 {-1, 6, 2},
                 {-1, 7, 4},
                 {-1, 14, 4},
                 {-1, 15, 12},
                 {-1, 255, 252},
                 {-1, 0xFFFFF, 65532},
                 {-1, 0xFFFFFFFF, 65532},
                 {-1, ~uint64_t{0}, 65532},
                 {-1, 0x80000000F0, 0xF0},
                 {-1, 0xF00000000, 0xF00000000},
                 {5, 1, 5},
                 {0, 15, 0}};
    for (const auto& test : cases) {
        EXPECT_EQ(ChooseAffinity(test.option, test.processMask), test.chosen) << test.processMask;
    }
}

TEST(ProcessSettingsTest, PriorityGoesToTheProcessMeant) {
    VirtualProcess process;
    process.AddProcess(7);
    process.AddProcess(9);
    process.SetWindowProcess(0x55, 7);
    EXPECT_EQ(SetProcessPriority(process, 0, 0, 0x80), 0x80U);
    EXPECT_EQ(process.Priority(VirtualProcess::kProcessId), 0x80U);
    EXPECT_EQ(SetProcessPriority(process, 0, 0x55, 0x40), 0x40U);
    EXPECT_EQ(process.Priority(7), 0x40U);
    EXPECT_EQ(SetProcessPriority(process, 9, 0x55, 0x8000), 0x8000U);
    EXPECT_EQ(process.OpenCount(), 0U);
}

TEST(ProcessSettingsTest, RefusedAccessIsNotedAndChangesNothing) {
    VirtualProcess process;
    process.RefuseAccess(0x600);
    EXPECT_EQ(SetProcessPriority(process, 0, 0, 0x80), VirtualProcess::kNormalPriority);
    process.RefuseAccess(0x400);
    EXPECT_EQ(SetProcessPriority(process, 0, 0, 0x80), 0U);
    process.Refuse(ProcessCall::GetProcessAffinityMask);
    SetProcessAffinity(process, -1);
    EXPECT_EQ(process.Affinity(), 0xFU);
    SetProcessAffinity(process, 5);
    EXPECT_EQ(process.Affinity(), 5U) << "a mask of the user's needs no other";
}

}  // namespace
