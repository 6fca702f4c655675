#include <gtest/gtest.h>
#include <vector>

#include "base/Bytes.h"
#include "platform/virtual/OffsetServer.h"

namespace {

using Block = std::vector<uint8_t>;

void AddWord(Block& block, uint32_t word) {
    block.resize(block.size() + 4);
    StoreLE32(&block[block.size() - 4], word);
}

Block Words(std::initializer_list<uint32_t> words) {
    Block block;
    for (const uint32_t word : words) AddWord(block, word);
    return block;
}

TEST(OffsetServerTest, ServesRecordsInOrder) {
    OffsetServer server;
    std::vector<std::string> seen;
    server.Writing.Connect([&](uint32_t offset, std::span<const uint8_t>) {
        seen.push_back("before " + std::to_string(server.Get<uint8_t>(offset)));
    });
    server.Written.Connect([&](uint32_t offset, std::span<const uint8_t> bytes) {
        seen.push_back(std::to_string(offset) + "+" + std::to_string(bytes.size()) + " = " +
                       std::to_string(server.Get<uint8_t>(offset)));
    });
    server.Set<uint8_t>(0x100, 5);
    Block block = Words({1, 0x100, 4, 0xAAAAAAAA, 0,       // read before the write
                         2, 0x100, 4, 7,                   // write
                         1, 0x100, 4, 0xBBBBBBBB, 0, 0});  // read after it
    ASSERT_TRUE(server.Serve(block));
    EXPECT_EQ(block,
              Words({1, 0x100, 4, 0xAAAAAAAA, 5, 2, 0x100, 4, 7, 1, 0x100, 4, 0xBBBBBBBB, 7, 0}));
    EXPECT_EQ(seen, (std::vector<std::string>{"before 5", "256+4 = 7"}));
}

TEST(OffsetServerTest, ClientVersionLeavesTheCheckPattern) {
    OffsetServer server;
    server.SetVersion(0x40000000, 10);
    Block write = Words({2, 0x330A, 2});
    write.insert(write.end(), {0x34, 0x12, 0, 0, 0, 0});
    ASSERT_TRUE(server.Serve(write));
    EXPECT_EQ(server.ClientVersion(), 0x1234);
    Block read = Words({1, 0x3304, 8, 0, 0, 0, 0});
    ASSERT_TRUE(server.Serve(read));
    EXPECT_EQ(read, Words({1, 0x3304, 8, 0, 0x40000000, 0xFADE000A, 0}));
}

TEST(OffsetServerTest, RefusesWhatItCantWalk) {
    const std::vector<Block> blocks = {
        {},
        {0, 0, 0},
        Words({3, 0, 0, 0, 0}),           // unknown record
        Words({0x10001, 0, 0, 0, 0}),     // identifier is all 32 bits
        Words({1, 0, 4}),                 // no room for the header
        Words({1, 0, 4, 0}),              // no room for the data
        Words({2, 0, 5, 0}),              // data one byte short
        Words({1, 0, 0xFFFFFFFF, 0, 0}),  // length of all
        Words({1, 0x10000, 1, 0, 0, 0}),  // beyond the space
        Words({2, 0xFFFFFFFF, 1, 0, 0}),  // far beyond it
        Words({1, 0xFFFD, 4, 0, 0, 0}),   // over its end
        Words({1, 0, 4, 0, 0}),           // no closing word
    };
    for (Block block : blocks) {
        const Block before = block;
        OffsetServer server;
        EXPECT_FALSE(server.Serve(block)) << testing::PrintToString(before);
        EXPECT_EQ(block, before);
    }
    Block last = Words({1, 0xFFFC, 4, 0, 9, 0});
    EXPECT_TRUE(OffsetServer().Serve(last));
    EXPECT_EQ(LoadLE32(&last[16]), 0u);
}

}  // namespace
