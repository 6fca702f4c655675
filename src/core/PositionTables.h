#pragma once

#include <cstdint>

// The numbers that the program uses for the bits with which device objects report positions,
// buttons and switches. 0 for a bit that isn't in the table.
int32_t RadioSelectorPosition(int32_t bit);  // 1 COM1 to 7 XPDR
int32_t MultiSelectorPosition(int32_t bit);  // 1 ALT to 5 CRS
int32_t MultiButtonPosition(int32_t bit);    // 1 AP to 8 REV
int32_t SwitchPosition(int32_t bit);         // 1 to 20
