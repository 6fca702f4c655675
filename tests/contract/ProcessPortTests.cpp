#include "contract/ContractPlatform.h"

namespace {

class ProcessPortContract : public ContractTest {
  protected:
    ProcessPort& process = ports.process;
};

TEST_F(ProcessPortContract, PriorityOfAnOpenedProcess) {
    constexpr uint32_t kQueryAndSet = 0x0400 | 0x0200;
    constexpr uint32_t kBelowNormal = 0x4000;
    const uintptr_t self = process.OpenProcess(kQueryAndSet, process.GetCurrentProcessId());
    ASSERT_NE(self, 0u);
    const uint32_t before = process.GetPriorityClass(self);
    EXPECT_NE(before, 0u);
    EXPECT_TRUE(process.SetPriorityClass(self, kBelowNormal));
    EXPECT_EQ(process.GetPriorityClass(self), kBelowNormal);
    EXPECT_TRUE(process.SetPriorityClass(self, before));
    process.CloseProcess(self);

    EXPECT_EQ(process.OpenProcess(kQueryAndSet, 0xFFFFFFF0), 0u);
    EXPECT_EQ(process.GetPriorityClass(0), 0u);
    EXPECT_FALSE(process.SetPriorityClass(0, before));
    EXPECT_EQ(process.ProcessOfWindow(0), 0u);
    EXPECT_EQ(process.ProcessOfWindow(0x7FFFFFF0), 0u);
}

TEST_F(ProcessPortContract, Affinity) {
    uint64_t mask = 0;
    ASSERT_TRUE(process.GetProcessAffinityMask(mask));
    EXPECT_NE(mask, 0u);
    const uint64_t one = mask & (~mask + 1);
    EXPECT_TRUE(process.SetProcessAffinityMask(one));
    uint64_t changed = 0;
    EXPECT_TRUE(process.GetProcessAffinityMask(changed));
    EXPECT_EQ(changed, one);
    EXPECT_FALSE(process.SetProcessAffinityMask(0));
    EXPECT_TRUE(process.SetProcessAffinityMask(mask));
}

TEST_F(ProcessPortContract, OnlyTheFirstHasTheInstance) {
    const std::string name = "OrvoContract" + std::to_string(process.GetCurrentProcessId());
    EXPECT_TRUE(process.ClaimSingleInstance(name));
    EXPECT_FALSE(process.ClaimSingleInstance(name));
    EXPECT_TRUE(process.ClaimSingleInstance(name + "other"));
}

TEST_F(ProcessPortContract, ProgramFolderHasNoSeparatorAtItsEnd) {
    const std::string folder = process.ProgramFolder();
    ASSERT_GE(folder.size(), 3u);
    EXPECT_EQ(folder[1], ':');
    EXPECT_NE(folder.back(), '\\');
}

}  // namespace
