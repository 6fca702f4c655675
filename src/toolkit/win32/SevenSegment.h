#pragma once

#include <windows.h>

#include <cstdint>
#include <string>
#include <vector>

#include "toolkit/Picture.h"

// One place of a seven-segment display. Bits of `lit`: 0 the top segment, on clockwise to 5 the
// upper left one, 6 the middle one.
struct SegmentCell {
    uint8_t lit = 0;
    bool point = false;

    bool operator==(const SegmentCell&) const = default;
};

// The places that a text takes: a point or comma belongs to the digit before it, on displays that
// have points. What the display can't show is blank.
std::vector<SegmentCell> ToSegmentCells(const std::string& text, bool hasPoints);

// Draws as many places as the area is wide for; the cells stand at the left, the right or in the
// middle of them, and the places that they leave, like their unlit segments, show faintly. Of too
// many cells the first are left out at the right, else the last.
void DrawSevenSegment(HDC dc, const RECT& area, std::vector<SegmentCell> cells, Alignment align,
                      int digitHeight, COLORREF lit);
