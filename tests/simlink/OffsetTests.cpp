#include <cmath>
#include <cstring>
#include <gtest/gtest.h>
#include <vector>

#include "bench/virtual/SimulatorLink.h"

namespace {

struct OffsetTest : testing::Test, SimulatorLink {
    static void Fill(cOFFSET& offset, std::initializer_list<uint8_t> bytes) {
        std::memcpy(offset.DataPtr(), std::data(bytes), bytes.size());
    }
};

TEST_F(OffsetTest, DataReadsTheBytesOfItsType) {
    const struct {
        int32_t type;
        std::vector<uint8_t> bytes;
        double value;
    } cases[] = {
        {1, {0xFF}, 255},
        {2, {0xFE, 0xFF}, -2},
        {3, {0x01, 0xFF}, 65281},
        {4, {0, 0, 0, 0x80}, -2147483648.0},
        {5, {0, 0, 1, 0}, 655536},  // not 65536
        {5, {1, 1, 1, 1}, 1 + 256 + 655536 + 16777216},
        {6, {0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF}, -1},
        {7, {0, 0, 0x80, 0x3F}, 1},
        {8, {0, 0, 0, 0, 0, 0, 0xF0, 0x3F}, 1},
    };
    for (const auto& test : cases) {
        SCOPED_TRACE(test.type);
        cOFFSET offset(fsuipc, 0x100, test.type);
        ASSERT_EQ(offset.Lenght, static_cast<int32_t>(test.bytes.size()));
        std::memcpy(offset.DataPtr(), test.bytes.data(), test.bytes.size());
        EXPECT_EQ(offset.Data(), test.value);
    }
}

TEST_F(OffsetTest, DataWrittenIsRoundedAndHeldToTheType) {
    const struct {
        int32_t type;
        double written;
        double read;
    } cases[] = {
        {1, 300, 255},     {1, -1, 0},
        {2, 40000, 32767}, {2, 2.5, 2},
        {2, 3.5, 4},       {3, 65353.24, 65353},
        {3, 65536, 0},     {4, 1e12, 2147483647},
        {4, NAN, 0},       {6, 1e30, 9223372036854775807.0},
        {7, 0.5, 0.5},     {8, -0.1, -0.1},
    };
    for (const auto& test : cases) {
        cOFFSET offset(fsuipc, 0x100, test.type);
        offset.SetData(test.written);
        EXPECT_EQ(offset.Data(), test.read) << "type " << test.type << " of " << test.written;
    }
    cOFFSET raw(fsuipc, 0x100, 5);
    raw.SetData(65535);
    EXPECT_EQ(raw.ByteN(1), 0xFF);
    EXPECT_EQ(raw.ByteN(2), 0);
}

TEST_F(OffsetTest, BcdAndFrequencies) {
    cOFFSET word(fsuipc, 0, 3);
    Fill(word, {0x45, 0x23});
    EXPECT_EQ(word.GetBCD(), 2345);
    EXPECT_FLOAT_EQ(word.GetFreq(), 123.45F);
    word.SetBcd(1234);
    EXPECT_EQ(word.ByteN(0), 0x34);
    EXPECT_EQ(word.ByteN(1), 0x12);
    word.SetBcd(10000);
    EXPECT_EQ(word.GetBCD(), 9999);
    cOFFSET raw(fsuipc, 0, 5);
    Fill(raw, {0x05, 0x00, 0x99, 0x39});
    EXPECT_EQ(raw.GetBCDHigh(), 3999);
    EXPECT_EQ(raw.GetBCDLow(), 5);
    cOFFSET integer(fsuipc, 0, 4);
    integer.SetData(0x01020304);
    EXPECT_EQ(integer.ByteN(1), 0);
}

TEST_F(OffsetTest, StringsEndAtNulOrLenghtAndNeverPassTheStorage) {
    cOFFSET text(fsuipc, 0, 9);
    text.Lenght = 60;
    std::memset(text.DataPtr(), 'x', 256);
    EXPECT_EQ(text.Text().size(), 60U);
    static_cast<char*>(text.DataPtr())[10] = '\0';
    EXPECT_EQ(text.Text().size(), 10U);
    text.Lenght = 100000;
    EXPECT_EQ(text.TransferLenght(), 256);
    text.SetText(std::string(300, 'y'));
    EXPECT_EQ(text.Text().size(), 255U);
    cOFFSET unknown(fsuipc, 0, 12);
    unknown.SetData(1);
    EXPECT_EQ(unknown.Data(), 0);
    EXPECT_EQ(unknown.DataPtr(), nullptr);
}

TEST_F(OffsetTest, DirectTransfers) {
    cOFFSET offset(fsuipc, 0x0BC0, 2);
    EXPECT_FALSE(offset.DirectRead(true));
    EXPECT_EQ(offset.dwResult, 9) << "no channel";
    ASSERT_TRUE(Open());
    machine.server.Set<int16_t>(0x0BC0, -5);
    EXPECT_TRUE(offset.DirectRead(true));
    EXPECT_EQ(offset.Data(), -5);
    offset.SetData(7);
    offset.DirectWrite(false);
    EXPECT_EQ(machine.server.Get<int16_t>(0x0BC0), -5) << "waits for the next exchange";
    fsuipc.FSUIPC_Process(result);
    EXPECT_EQ(machine.server.Get<int16_t>(0x0BC0), 7);
}

TEST_F(OffsetTest, TableKeepsTheFirstOfANameAndNamedOffsetsFollowIt) {
    ASSERT_TRUE(Open());
    machine.server.Set<int32_t>(0x10, 1);
    machine.server.Set<int32_t>(0x20, 2);
    cOffsetTable& table = session.OffsetTable;
    const NamedOffset gear(table, "Gear");
    EXPECT_EQ(gear.Data(), 0);
    const auto polled = [&] {
        table.QueueReads();
        fsuipc.FSUIPC_Process(result);
        return gear.Data();
    };
    table.RegisterOffset(0x10, 4, "GEAR");
    table.RegisterOffset(0x20, 4, "gear");
    EXPECT_TRUE(table.OffsetRegistered("gear"));
    EXPECT_EQ(polled(), 1);
    table.UnregisterOffset("flaps");
    table.UnregisterOffset("Gear");
    EXPECT_TRUE(table.Empty());
    EXPECT_EQ(gear.Data(), 0);
    table.RegisterOffset(0x20, 4, "gear");
    EXPECT_EQ(polled(), 2);
}

TEST_F(OffsetTest, WhatDoesNotFitIntoTheBatchKeepsItsValue) {
    ASSERT_TRUE(Open());
    cOffsetTable& table = session.OffsetTable;
    for (int i = 0; i < 130; ++i) {
        machine.server.Set<uint8_t>(static_cast<uint32_t>(i * 256), 'a');
        table.RegisterOffset(i * 256, 9, "T" + std::to_string(i), 256);
    }
    table.QueueReads();
    ASSERT_TRUE(fsuipc.FSUIPC_Process(result));
    EXPECT_EQ(table.Item("T118")->Text(), "a");
    EXPECT_EQ(table.Item("T129")->Text(), "");
    EXPECT_EQ(table.Item("T129")->dwResult, 15);
}

}  // namespace
