#include <gtest/gtest.h>
#include <string_view>
#include <vector>

#include "panels/bip/TileOffsets.h"
#include "panels/multi/MultiPanelOffsets.h"
#include "panels/radio/RadioPanelOffsets.h"
#include "panels/switch/SwitchPanelOffsets.h"

namespace {

// Whichever kind of panel was there first, the others read its entry.
TEST(SharedOffsetsTest, PanelsAgreeOnTheNamesThatTheyShare) {
    std::vector<OffsetRow> rows = {{"MASTERBATTERY", 0x281C, 4}, {"MASTERAVIONICS", 0x2E80, 4}};
    const auto add = [&](const auto& table) {
        int shared = 0;
        for (const OffsetRow& row : table)
            for (const OffsetRow& before : rows) {
                if (std::string_view(row.name) != before.name) continue;
                EXPECT_EQ(row.offset, before.offset) << row.name;
                EXPECT_EQ(row.dataType, before.dataType) << row.name;
                ++shared;
            }
        rows.insert(rows.end(), std::begin(table), std::end(table));
        return shared;
    };
    EXPECT_EQ(add(kTileOffsets) + add(kRadioOffsets) + add(kMultiOffsets), 0);
    EXPECT_EQ(add(kSwitchOffsets), 4) << "the legs of the gear, and the battery";
}

}  // namespace
