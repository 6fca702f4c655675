#pragma once

#include <cstdint>

#include "core/AircraftBinding.h"
#include "platform/Clock.h"
#include "platform/ProcessPort.h"
#include "ui/WindowState.h"

// Comes back to what could not be read or written because another program held the file: at ticks
// while the program runs, and at its end.
class PendingFiles {
  public:
    PendingFiles(Clock& clock, ProcessPort& process, cSetupHolder& setup,
                 const WindowState& windows, AircraftBinding& binding);

    // For every tick: costs nothing while nothing waits, and touches files twice a second at most.
    void Tick();

    // Saves options and lists. Waits for a held file, about half a second for each of
    // the two.
    void SaveAll();

  private:
    void ApplyLate();

    Clock& clock_;
    ProcessPort& process_;
    cSetupHolder& setup_;
    const WindowState& windows_;
    AircraftBinding& binding_;
    bool optionsWait_;
    uint32_t lastTry_;
};
