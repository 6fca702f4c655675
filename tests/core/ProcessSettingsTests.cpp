#include <gtest/gtest.h>

#include "core/ProcessSettings.h"
#include "platform/virtual/VirtualProcess.h"

namespace {

TEST(ProcessSettingsTest, AffinityLeavesTheFirstProcessorsToTheSimulator) {
    const std::pair<uint64_t, uint64_t> chosen[] = {
        {0, 1},
        {1, 1},
        {2, 1},
        {3, 2},
        {6, 2},
        {7, 4},
        {14, 4},
        {15, 12},
        {255, 252},
        {0xFFFFF, 65532},
        {0xFFFFFFFF, 65532},
        {~uint64_t{0}, 65532},
        {0x80000000F0, 0xF0},
        {0xF00000000, 0xF00000000}};  // none of the third to sixteenth
    for (const auto& [ofProcess, mask] : chosen)
        EXPECT_EQ(ChooseAffinity(-1, ofProcess), mask) << ofProcess;
    EXPECT_EQ(ChooseAffinity(5, 1), 5U);
    EXPECT_EQ(ChooseAffinity(0, 15), 0U);
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
