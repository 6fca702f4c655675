#include "contract/ContractPlatform.h"

namespace {

class IpcChannelContract : public ContractTest {
  protected:
    IpcChannel& ipc = ports.ipc;
    // Unlike any name of another run on the same system.
    const std::string name = "OrvoContract:" + std::to_string(ports.ipc.GetCurrentProcessId());
};

constexpr uint32_t kSize = 32768;
constexpr uint32_t kAlreadyExists = 183;

TEST_F(IpcChannelContract, AtomsCountTheirUses) {
    const uint16_t atom = ipc.GlobalAddAtomA(name);
    ASSERT_GE(atom, 0xC000);
    EXPECT_EQ(ipc.GetLastError(), 0u);
    EXPECT_EQ(ipc.GlobalAddAtomA(name), atom);
    EXPECT_NE(ipc.GlobalAddAtomA(name + "2"), atom);
    EXPECT_EQ(ipc.GlobalAddAtomA(std::string(256, 'a')), 0);
    EXPECT_NE(ipc.GetLastError(), 0u);
    ipc.GlobalDeleteAtom(atom);
    EXPECT_EQ(ipc.GlobalAddAtomA(name), atom) << "one use was left";
    ipc.GlobalDeleteAtom(atom);
    ipc.GlobalDeleteAtom(atom);
    ipc.GlobalDeleteAtom(ipc.GlobalAddAtomA(name + "2"));
    ipc.GlobalDeleteAtom(ipc.GlobalAddAtomA(name + "2"));
}

TEST_F(IpcChannelContract, MappingIsSharedByNameWhileAnyoneHasIt) {
    const uintptr_t first = ipc.CreateFileMappingA(name, kSize);
    ASSERT_NE(first, 0u);
    EXPECT_EQ(ipc.GetLastError(), 0u);
    uint8_t* view = ipc.MapViewOfFile(first);
    ASSERT_NE(view, nullptr);
    EXPECT_EQ(view[0], 0);
    view[0] = 0x12;
    view[kSize - 1] = 0x34;

    const uintptr_t second = ipc.CreateFileMappingA(name, kSize);
    EXPECT_EQ(ipc.GetLastError(), kAlreadyExists);
    ASSERT_NE(second, 0u);
    uint8_t* other = ipc.MapViewOfFile(second);
    ASSERT_NE(other, nullptr);
    EXPECT_EQ(ipc.GetLastError(), 0u) << "the error is the last call's";
    EXPECT_EQ(other[0], 0x12);
    EXPECT_EQ(other[kSize - 1], 0x34);
    ipc.UnmapViewOfFile(other);
    ipc.CloseHandle(second);

    ipc.CloseHandle(first);
    view[1] = 0x56;
    EXPECT_EQ(view[0], 0x12) << "a view outlives its handle";
    ipc.UnmapViewOfFile(view);

    const uintptr_t third = ipc.CreateFileMappingA(name, kSize);
    EXPECT_EQ(ipc.GetLastError(), 0u) << "the name is free again";
    view = ipc.MapViewOfFile(third);
    ASSERT_NE(view, nullptr);
    EXPECT_EQ(view[0], 0);
    ipc.UnmapViewOfFile(view);
    ipc.CloseHandle(third);
}

TEST_F(IpcChannelContract, FailingCallsLeaveAnError) {
    EXPECT_EQ(ipc.MapViewOfFile(0), nullptr);
    EXPECT_NE(ipc.GetLastError(), 0u);
    EXPECT_EQ(ipc.CreateFileMappingA(name, 0), 0u);
    EXPECT_NE(ipc.GetLastError(), 0u);

    uintptr_t reply = 0;
    const uint32_t message = ipc.RegisterWindowMessageA(name);
    EXPECT_EQ(ipc.SendMessageTimeoutA(0x7FFFFFF0, message, 1, 0, 1, 2000, reply), 0u)
        << "no such window";
    EXPECT_NE(ipc.GetLastError(), 0u);
}

TEST_F(IpcChannelContract, NamesOfWindowsAndMessages) {
    EXPECT_EQ(ipc.FindWindowExA(name), 0u);
    const uint32_t message = ipc.RegisterWindowMessageA(name);
    EXPECT_GE(message, 0xC000u);
    EXPECT_LE(message, 0xFFFFu);
    EXPECT_EQ(ipc.RegisterWindowMessageA(name), message);
    EXPECT_NE(ipc.RegisterWindowMessageA(name + "2"), message);
    EXPECT_EQ(ipc.GetCurrentProcessId(), ports.process.GetCurrentProcessId());
}

}  // namespace
