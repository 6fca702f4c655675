#include <array>
#include <functional>
#include <gtest/gtest.h>
#include <utility>

#include "base/Bytes.h"
#include "bench/virtual/SimulatorLink.h"
#include "simlink/actions/EventOutput.h"

namespace {

struct FsuipcTest : testing::Test, SimulatorLink {
    static constexpr int32_t kDone = -1;
    std::array<uint8_t, 40000> data{};

    // What comes of an exchange, or of asking for one: the code of the failure, or kDone.
    int32_t Process() { return fsuipc.FSUIPC_Process(result) ? kDone : result; }
    int32_t Read(int32_t count) {
        return fsuipc.FSUIPC_Read(0, count, data.data(), result) ? kDone : result;
    }
    int32_t Reopen(int32_t version = 0) {
        return fsuipc.FSUIPC_Open(version, result) ? kDone : result;
    }

    void ExpectClosed() {
        EXPECT_FALSE(fsuipc.IsOpen());
        EXPECT_EQ(machine.ipc.OpenAtoms() + machine.ipc.OpenMappings(), 0U);
        EXPECT_EQ(machine.ipc.OpenViews(), 0U);
    }
};

TEST_F(FsuipcTest, OpensReadsVersionsAndClosesInOrder) {
    machine.server.SetVersion(0x39990005, 8);
    ASSERT_TRUE(Open());
    EXPECT_EQ(result, 0);
    EXPECT_EQ(fsuipc.FSUIPC_Version, 0x39990005);
    EXPECT_EQ(fsuipc.FSUIPC_FS_Version, 8U);
    ASSERT_EQ(machine.ipc.SentMessages().size(), 1U);
    const auto& sent = machine.ipc.SentMessages()[0];
    EXPECT_EQ(sent.wParam, 0xFFFFC000U) << "the atom, sign-extended to 32 bits";
    EXPECT_EQ(sent.flags, 1U);
    EXPECT_EQ(sent.timeoutMs, 2000U);
    EXPECT_EQ(machine.clock.Elapsed(), 60U);
    fsuipc.FSUIPC_Close();
    ExpectClosed();
}

TEST_F(FsuipcTest, OpenFailuresGiveTheirCodeAndLeaveTheChannelClosed) {
    uintptr_t other = 0;
    const struct {
        const char* what;
        std::function<void()> prepare;
        int32_t code;
    } cases[] = {
        {"no window", [&] { machine.ipc.RemoveWindows(); }, 2},
        {"no message", [&] { machine.ipc.Refuse(IpcCall::RegisterWindowMessageA, 1); }, 3},
        {"no atom", [&] { machine.ipc.Refuse(IpcCall::GlobalAddAtomA, 1); }, 4},
        {"mapping in the way",
         [&] { other = machine.ipc.CreateFileMappingA("FSASMLIB:IPC:1A2B:1", 32768); }, 5},
        {"no mapping", [&] { machine.ipc.Refuse(IpcCall::CreateFileMappingA, 1); }, 6},
        {"no view", [&] { machine.ipc.Refuse(IpcCall::MapViewOfFile, 1); }, 6},
        {"old version", [&] { machine.server.SetVersion(0x19980004, 8); }, 7},
        {"negative version", [&] { machine.server.SetVersion(0x80000000, 8); }, 7},
        {"no check pattern", [&] { machine.server.Set<uint32_t>(0x3308, 0xFADF0008); }, 7},
        {"refusing server", [&] { machine.ipc.AnswerWith(0, 1); }, 13},
        {"a record that was not sent",
         [&] { machine.ipc.AfterServing([](std::span<uint8_t> b) { StoreLE32(&b[0], 7); }); }, 0},
    };
    for (const auto& test : cases) {
        SCOPED_TRACE(test.what);
        machine.ipc.RemoveWindows();
        machine.ipc.AddWindow("UIPCMAIN");
        machine.server.SetVersion(0x39990005, 8);
        test.prepare();
        EXPECT_EQ(Reopen(), test.code);
        machine.ipc.CloseHandle(std::exchange(other, 0));
        ExpectClosed();
    }
}

TEST_F(FsuipcTest, SecondWindowClassIsTheSecondChoice) {
    ASSERT_TRUE(Open("FS98MAIN"));
    fsuipc.FSUIPC_Close();
    machine.server.SetVersion(0x19980004, 8);
    EXPECT_EQ(Reopen(), 14);
}

TEST_F(FsuipcTest, AskingForAnotherSimulatorClosesAndOpeningTwiceChangesNothing) {
    machine.ipc.AddWindow("UIPCMAIN");
    EXPECT_EQ(Reopen(7), 8);
    ExpectClosed();
    EXPECT_EQ(Reopen(8), kDone);
    EXPECT_EQ(Read(4), kDone);
    EXPECT_EQ(Reopen(), 1);
    EXPECT_EQ(Process(), kDone);
}

TEST_F(FsuipcTest, ZerosAreAskedForFiveTimes) {
    std::vector<size_t> notices;
    const ScopedConnection writing =
        machine.server.Writing.Connect([&](uint32_t offset, std::span<const uint8_t> bytes) {
            EXPECT_EQ(offset, 0x330AU);
            EXPECT_EQ(LoadLE16(bytes.data()), 0);
            notices.push_back(bytes.size());
        });
    machine.server.Set<uint32_t>(0x3304, 0);
    machine.server.Set<uint32_t>(0x3308, 0);
    EXPECT_FALSE(Open());
    EXPECT_EQ(result, 7);
    EXPECT_EQ(machine.ipc.SentMessages().size(), 5U);
    EXPECT_EQ(machine.clock.Elapsed(), 5 * 60U);
    EXPECT_EQ(notices, std::vector<size_t>(5, 2)) << "each time with the library's version";
}

TEST_F(FsuipcTest, BatchLimitsToTheByte) {
    ASSERT_TRUE(Open());
    const struct {
        bool write;
        int32_t count;
        bool fits;
    } cases[] = {{false, 32492, true}, {false, 32493, false}, {true, 32496, true},
                 {true, 32497, false}, {false, -1, false},    {true, INT32_MAX, false}};
    for (const auto& test : cases) {
        SCOPED_TRACE(test.count);
        const bool queued = test.write ? fsuipc.FSUIPC_Write(0, test.count, data.data(), result)
                                       : fsuipc.FSUIPC_Read(0, test.count, data.data(), result);
        EXPECT_EQ(queued, test.fits);
        EXPECT_EQ(result, test.fits ? 0 : 15);
        EXPECT_EQ(fsuipc.FSUIPC_Process(result), test.fits) << "a refused record leaves no trace";
    }
}

TEST_F(FsuipcTest, ClosedAndEmptyChannelsSendNothing) {
    EXPECT_EQ(Read(4), 9);
    EXPECT_EQ(Process(), 9);
    ASSERT_TRUE(Open());
    machine.ipc.ForgetSentMessages();
    EXPECT_EQ(Process(), 10);
    EXPECT_TRUE(machine.ipc.SentMessages().empty());
}

TEST_F(FsuipcTest, OneBatchCarriesWritesBeforeReads) {
    ASSERT_TRUE(Open());
    const uint8_t value[] = {1, 2, 3, 4};
    output.SendControl(65615, -2);
    fsuipc.FSUIPC_Write(0x200, 4, value, result);
    fsuipc.FSUIPC_Read(0x200, 4, data.data(), result);
    fsuipc.FSUIPC_Read(0x200, 2, nullptr, result);
    EXPECT_EQ(Process(), kDone);
    EXPECT_EQ(LoadLE32(data.data()), 0x04030201U);
    EXPECT_EQ(machine.server.Get<int32_t>(0x3110), 65615);
    EXPECT_EQ(machine.server.Get<int32_t>(0x3114), -2);
}

TEST_F(FsuipcTest, UnansweredMessagesAreRepeated) {
    ASSERT_TRUE(Open());
    const struct {
        int timeouts;
        uint32_t error;
        size_t messages;
        int32_t code;
    } cases[] = {
        {9, 1460, 10, kDone},
        {10, 1460, 11, 11},  // the tenth repeat went through, and counts for nothing
        {11, 1460, 11, 12},
        {11, 0, 11, 11},
    };
    for (const auto& test : cases) {
        SCOPED_TRACE(test.timeouts);
        machine.ipc.ForgetSentMessages();
        Read(4);
        machine.ipc.TimeOut(test.timeouts, test.error);
        EXPECT_EQ(Process(), test.code);
        EXPECT_EQ(machine.ipc.SentMessages().size(), test.messages);
        EXPECT_EQ(Process(), 10) << "the batch is consumed all the same";
    }
}

TEST_F(FsuipcTest, AUserWhoWaitsEndsTheRepeatsOfAnOpeningButOfNoSession) {
    machine.ipc.LetUserWait(true);
    machine.ipc.TimeOut(1);
    EXPECT_FALSE(Open());
    EXPECT_EQ(machine.ipc.SentMessages().size(), 1U);
    EXPECT_EQ(machine.ipc.OpenViews(), 0U);
    ASSERT_TRUE(Open());
    Read(4);
    machine.ipc.TimeOut(9);
    EXPECT_EQ(Process(), kDone);
}

// A block that isn't made of the records that were sent fails the exchange, and nothing but the
// destinations is ever written.
TEST_F(FsuipcTest, HostileRepliesFail) {
    ASSERT_TRUE(Open());
    using Block = std::span<uint8_t>;
    const struct {
        const char* what;
        std::function<void(Block)> damage;
    } cases[] = {
        {"unknown identifier", [](Block b) { StoreLE32(&b[0], 7); }},
        {"a write for a read", [](Block b) { StoreLE32(&b[0], 2); }},
        {"longer than sent", [](Block b) { StoreLE32(&b[8], 5); }},
        {"past the block", [](Block b) { StoreLE32(&b[8], 0xFFFFFFF0); }},
        {"no such token", [](Block b) { StoreLE32(&b[12], 3); }},
        {"token of another", [](Block b) { StoreLE32(&b[12], 2); }},
        {"address as token", [](Block b) { StoreLE32(&b[12], 0x12345678); }},
        {"more than sent", [](Block b) { StoreLE32(&b[40], 1); }},
        {"all ones", [](Block b) { std::fill(b.begin(), b.end(), uint8_t{0xFF}); }},
    };
    for (const auto& test : cases) {
        SCOPED_TRACE(test.what);
        data.fill(0xAA);
        fsuipc.FSUIPC_Read(0x10, 4, &data[8], result);
        fsuipc.FSUIPC_Read(0x20, 4, &data[16], result);
        machine.ipc.AfterServing(test.damage);
        result = 99;
        EXPECT_FALSE(fsuipc.FSUIPC_Process(result));
        EXPECT_EQ(result, 99);
        for (const size_t outside : {7U, 12U, 15U, 20U}) EXPECT_EQ(data[outside], 0xAA);
        machine.ipc.AfterServing({});
        fsuipc.FSUIPC_Read(0x10, 4, &data[8], result);
        EXPECT_EQ(Process(), kDone) << "the next batch is a clean one";
    }
}

TEST_F(FsuipcTest, ReplyOfZerosEndsTheWalk) {
    ASSERT_TRUE(Open());
    data.fill(0xAA);
    fsuipc.FSUIPC_Read(0x10, 4, data.data(), result);
    machine.ipc.AfterServing([](std::span<uint8_t> b) { std::fill(b.begin(), b.end(), 0); });
    EXPECT_TRUE(fsuipc.FSUIPC_Process(result));
    EXPECT_EQ(data[0], 0xAA) << "what isn't answered keeps its value";
    EXPECT_FALSE(fsuipc.AllRead());
}

// Between two ticks the session may go on, so what was to be written is still to be.
TEST_F(FsuipcTest, EventsExchangeInVainKeepsItsWritesAndNoRead) {
    ASSERT_TRUE(Open());
    const uint8_t value[] = {1, 2, 3, 4};
    const auto exchangeInVain = [&] {
        data.fill(0xAA);
        fsuipc.FSUIPC_Read(0x100, 4, data.data(), result);
        fsuipc.FSUIPC_Write(0x200, 4, value, result);
        fsuipc.FSUIPC_Read(0x200, 4, &data[8], result);
        fsuipc.FSUIPC_Write(0x300, 2, value, result);
        machine.ipc.ForgetSentMessages();
        EXPECT_FALSE(fsuipc.ProcessForEvent(result));
        const uint64_t before = machine.clock.Elapsed();
        EXPECT_FALSE(fsuipc.ProcessForEvent(result)) << "it isn't asked a second time";
        EXPECT_EQ(machine.clock.Elapsed(), before);
        EXPECT_EQ(machine.ipc.SentMessages().size(), 11U);
    };
    machine.ipc.RemoveWindows();
    exchangeInVain();
    fsuipc.FSUIPC_Close();
    ASSERT_TRUE(Open());
    EXPECT_EQ(machine.server.Get<uint16_t>(0x300), 0) << "not in another session";
    machine.ipc.TimeOut(11);
    exchangeInVain();
    EXPECT_EQ(Process(), kDone);
    EXPECT_EQ(machine.server.Get<uint32_t>(0x200), 0x04030201U);
    EXPECT_EQ(machine.server.Get<uint16_t>(0x300), 0x0201);
    EXPECT_EQ(data[0] & data[8], 0xAA);
    EXPECT_EQ(Process(), 10) << "once";
}

// It has done what it was asked for, only too late.
TEST_F(FsuipcTest, WritesThatWereTakenAtTheLastRepeatAreNotSentAgain) {
    ASSERT_TRUE(Open());
    int swaps = 0;
    const ScopedConnection counting =
        machine.server.Written.Connect([&](uint32_t, std::span<const uint8_t>) { ++swaps; });
    const uint8_t value = 8;
    fsuipc.FSUIPC_Write(0x3123, 1, &value, result);
    machine.ipc.TimeOut(10);
    EXPECT_FALSE(fsuipc.ProcessForEvent(result));
    fsuipc.FSUIPC_Process(result);
    EXPECT_EQ(swaps, 1);
    EXPECT_EQ(result, 10);
}

}  // namespace
