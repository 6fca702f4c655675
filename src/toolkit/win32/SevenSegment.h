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

// The places that a text takes: a point or comma belongs to the digit before it. What the display
// can't show is blank.
std::vector<SegmentCell> ToSegmentCells(const std::string& text);

// Draws as many places as the area is wide for; the text stands at the left, the right or in the
// middle of them, and the places that it leaves, like its unlit segments, show faintly. Of a text
// that is too long the first places are left out at the right, else the last ones.
void DrawSevenSegment(HDC dc, const RECT& area, const std::string& text, Alignment align,
                      int digitHeight, COLORREF lit);
