#pragma once

#include <cstdint>

// The numbers by which the program knows the Multi Panel's selector positions and buttons. 0 is no
// position: the selector stands between two, or hasn't been told yet.
namespace MultiPosition {
enum : int32_t { kNone = 0, kALT, kVS, kIAS, kHDG, kCRS };
}  // namespace MultiPosition

namespace MultiButton {
enum : int32_t { kAP = 1, kHDG, kNAV, kIAS, kALT, kVS, kAPR, kREV };
}  // namespace MultiButton
