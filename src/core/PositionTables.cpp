#include "core/PositionTables.h"

namespace {

struct BitRow {
    int32_t bit;
    int32_t radioSelector;
    int32_t multiButton;
    int32_t multiSelector;
    int32_t switchNumber;
};

constexpr BitRow kBits[] = {
    {0x000001, 0, 0, 0, 4},  {0x000002, 0, 0, 0, 5},  {0x000004, 0, 0, 0, 19},
    {0x000008, 0, 0, 0, 20}, {0x000100, 2, 2, 0, 14}, {0x000200, 3, 3, 0, 15},
    {0x000400, 4, 4, 0, 16}, {0x000800, 5, 5, 0, 17}, {0x001000, 6, 6, 0, 18},
    {0x002000, 7, 7, 0, 1},  {0x004000, 0, 8, 0, 2},  {0x008000, 0, 0, 0, 3},
    {0x010000, 1, 0, 1, 6},  {0x020000, 2, 0, 2, 7},  {0x040000, 3, 0, 3, 8},
    {0x080000, 4, 0, 4, 9},  {0x100000, 5, 0, 5, 10}, {0x200000, 6, 0, 0, 11},
    {0x400000, 7, 0, 0, 12}, {0x800000, 1, 1, 0, 13},
};

int32_t SwitchBitToPosition(int32_t bit, int32_t BitRow::*column) {
    for (const BitRow& row : kBits) {
        if (row.bit == bit) return row.*column;
    }
    return 0;
}

}  // namespace

int32_t RadioSelectorPosition(int32_t bit) {
    return SwitchBitToPosition(bit, &BitRow::radioSelector);
}

int32_t MultiSelectorPosition(int32_t bit) {
    return SwitchBitToPosition(bit, &BitRow::multiSelector);
}

int32_t MultiButtonPosition(int32_t bit) { return SwitchBitToPosition(bit, &BitRow::multiButton); }

int32_t SwitchPosition(int32_t bit) { return SwitchBitToPosition(bit, &BitRow::switchNumber); }
