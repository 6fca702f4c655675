#pragma once

#include <string>

#include "bench/driver/Cockpit.h"

namespace bench {

// A strip of tabs that is seen and has the tab, and the tab's number in it.
struct Tab {
    HWND strip = nullptr;
    int number = 0;
};

Tab FindTab(HWND window, const std::string& caption);

// What a length of Orvo's windows comes to on this screen.
int Pixels(int twips);

// Does what the "window" of a step does, but for tours. It may be that the window is still to come,
// or what is to be worked in it. False when there is none in time, or the act has no effect.
bool WorkWindow(const Cockpit& cockpit, const std::string& act);

}  // namespace bench
