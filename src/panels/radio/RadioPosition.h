#pragma once

#include <cstdint>

// The numbers by which the program knows the positions of the Radio Panel's selectors; 0 is between
// two.
namespace RadioPosition {
enum : int32_t { kNone = 0, kCOM1, kCOM2, kNAV1, kNAV2, kADF, kDME, kXPDR };
}  // namespace RadioPosition
