#pragma once

#include <cstdint>
#include <initializer_list>

#include "toolkit/Control.h"

// Where a control of a window stands, in twips within its parent, and what it says.
struct PlacedControl {
    Control& control;
    int32_t left, top, width, height;
    const char* caption = nullptr;  // null leaves it
};

inline void PlaceControls(std::initializer_list<PlacedControl> table) {
    for (const PlacedControl& row : table) {
        row.control.Move(row.left, row.top, row.width, row.height);
        if (row.caption) row.control.Caption = row.caption;
    }
}
