#pragma once

#include <cstddef>
#include <cstdint>

// The bytes and bits of the BIP Panel. Tiles are numbered 0 to 23, row by row from the top left.

inline constexpr int16_t kBIPTiles = 24;
inline constexpr int16_t kBIPColumns = 8;

// Tile report: its id, a byte of green LEDs for each row, a byte of red ones for each row.
inline constexpr size_t kTileReportSize = 7;
inline constexpr uint8_t kTileReportId = 0xB8;
constexpr size_t GreenByte(size_t tile) { return 1 + tile / kBIPColumns; }
constexpr size_t RedByte(size_t tile) { return 4 + tile / kBIPColumns; }
constexpr uint8_t TileBit(size_t tile) { return static_cast<uint8_t>(1U << tile % kBIPColumns); }

// Brightness report: its id and the level, 0 to 100.
inline constexpr size_t kBrightnessReportSize = 2;
inline constexpr uint8_t kBrightnessReportId = 0xB2;
