#pragma once

#include <cstdint>

// Which windows are open, for all of them to see.
struct WindowState {
    bool ModalWindowOpen = false;  // a configuration window; it blocks the icon's double click
    int16_t SetupPanelIndex = 0;   // number of the panel whose setup window is or was open
};
