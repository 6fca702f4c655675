#include <gtest/gtest.h>
#include <memory>

#include "base/Bytes.h"
#include "bench/sim/AircraftModel.h"
#include "bench/sim/SimState.h"

namespace {

// A batch with one write record.
std::vector<uint8_t> WriteBatch(uint32_t offset, const std::vector<uint8_t>& data) {
    std::vector<uint8_t> block(12);
    StoreLE32(&block[0], 2);
    StoreLE32(&block[4], offset);
    StoreLE32(&block[8], static_cast<uint32_t>(data.size()));
    block.insert(block.end(), data.begin(), data.end());
    block.resize(block.size() + 4);
    return block;
}

class AircraftModelTest : public testing::Test {
  protected:
    void Write(uint32_t offset, const std::vector<uint8_t>& data) {
        auto block = WriteBatch(offset, data);
        ASSERT_EQ(state_->Serve(block), 1u);
    }

    std::unique_ptr<SimState> state_ = std::make_unique<SimState>();
    OffsetServer& space_ = state_->Space();
    AircraftModel& aircraft_ = state_->Aircraft();
};

TEST_F(AircraftModelTest, GearTravelsForSixSecondsBothWaysAndAcrossTheClocksWrap) {
    aircraft_.MoveTo(0xFFFFFF00);
    Write(0x0BE8, {0, 0, 0, 0});
    aircraft_.MoveTo(0xFFFFFF00 + 3000u);
    EXPECT_NEAR(space_.Get<int32_t>(0x0BF0), 16383 / 2, 1);
    aircraft_.MoveTo(0xFFFFFF00 + 6001u);
    EXPECT_EQ(space_.Get<int32_t>(0x0BEC), 0);
    Write(0x0BE8, {0xFF, 0x3F, 0, 0});
    aircraft_.MoveTo(0xFFFFFF00 + 20000u);
    EXPECT_EQ(space_.Get<int32_t>(0x0BF4), 16383);
}

TEST_F(AircraftModelTest, SwapsTheRadiosThatAreAskedForAndNoOther) {
    space_.Set<uint16_t>(0x034E, 0x1111);
    space_.Set<uint16_t>(0x311A, 0x2222);
    const auto nav2 = space_.Get<uint16_t>(0x0352);
    Write(0x3123, {8});
    EXPECT_EQ(space_.Get<uint16_t>(0x034E), 0x2222);
    EXPECT_EQ(space_.Get<uint16_t>(0x311A), 0x1111);
    EXPECT_EQ(space_.Get<uint16_t>(0x0352), nav2);
}

TEST_F(AircraftModelTest, LogsWritesInOrderAndControlsInWords) {
    Write(0x07CC, {0x9A, 0x39});
    Write(0x3110, {0x86, 0x11, 0x01, 0, 0, 0x40, 0, 0});
    const auto writes = aircraft_.TakeWrites();
    ASSERT_EQ(writes.size(), 2u);
    EXPECT_EQ(writes[0].offset, 0x07CCu);
    EXPECT_EQ(writes[0].bytes, (std::vector<uint8_t>{0x9A, 0x39}));
    const auto controls = aircraft_.TakeControls();
    ASSERT_EQ(controls.size(), 1u);
    EXPECT_EQ(controls[0].number, 70022);
    EXPECT_EQ(controls[0].parameter, 16384);
    EXPECT_TRUE(aircraft_.TakeWrites().empty());
}

}  // namespace
