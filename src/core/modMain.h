#pragma once

#include <memory>
#include <vector>

#include "config/ProfileStore.h"
#include "config/cSetupHolder.h"
#include "core/frmMain.h"
#include "platform/Patience.h"
#include "platform/Platform.h"
#include "simlink/actions/EventOutput.h"
#include "simlink/channel/cSession.h"
#include "toolkit/UiBackend.h"
#include "ui/WindowState.h"

// The program. Two of them can live in one process, each on a platform of its own.
class modMain {
  public:
    modMain(const Platform& platform, UiBackend& ui);

    // The start: builds everything and arms the timer. True when the program is to run on the
    // message loop from here on, false when it has ended.
    bool Main();

    cSetupHolder GeneralSetup;
    ProfileStore Profiles;
    cSession Session;
    EventOutput Output;
    WindowState Windows;

    // None before it is loaded, that is when another instance runs.
    frmMain* Window() { return window_.get(); }

  private:
    bool AlreadyRunning();
    void ReadOptions();
    void ReadProfiles();

    const Platform platform_;
    UiBackend& ui_;
    Patience patience_;  // with held files, at the start
    std::vector<ScreenRect> monitorRects_;
    std::unique_ptr<frmMain> window_;
};
