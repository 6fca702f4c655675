#pragma once

#include "core/frmMain.h"

enum class Discovery {
    Found,       // panels are connected and their logics run
    NoneGoOn,    // there are none, and the options say to go on without
    Stop,        // there are none, and the program is to stop
    EndProcess,  // the user knows why not to go on, or has closed the window
};

// Finds the panels, connects them and starts their logics, kind by kind.
Discovery DiscoverPanels(frmMain& window, const MainServices& services);

// One panel of each kind without a device.
void SetUpUnconnectedPanels(frmMain& window, const MainServices& services);
