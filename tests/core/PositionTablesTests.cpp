#include <gtest/gtest.h>
#include <vector>

#include "core/PositionTables.h"

namespace {

// Each column numbers its bits from 1 without a gap, in the panel's own order of bits.
TEST(PositionTablesTest, ColumnsNumberTheirBits) {
    const auto column = [](int32_t (*position)(int32_t)) {
        std::vector<int32_t> numbers;
        for (int32_t bit = 1; bit <= 0x800000; bit *= 2) numbers.push_back(position(bit));
        return numbers;
    };
    EXPECT_EQ(column(RadioSelectorPosition), (std::vector{0, 0, 0, 0, 0, 0, 0, 0, 2, 3, 4, 5,
                                                          6, 7, 0, 0, 1, 2, 3, 4, 5, 6, 7, 1}));
    EXPECT_EQ(column(MultiButtonPosition), (std::vector{0, 0, 0, 0, 0, 0, 0, 0, 2, 3, 4, 5,
                                                        6, 7, 8, 0, 0, 0, 0, 0, 0, 0, 0, 1}));
    EXPECT_EQ(column(MultiSelectorPosition), (std::vector{0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0,
                                                          0, 0, 0, 0, 1, 2, 3, 4, 5, 0, 0, 0}));
    EXPECT_EQ(column(SwitchPosition), (std::vector{4,  5, 19, 20, 0, 0, 0, 0, 14, 15, 16, 17,
                                                   18, 1, 2,  3,  6, 7, 8, 9, 10, 11, 12, 13}));
}

}  // namespace
