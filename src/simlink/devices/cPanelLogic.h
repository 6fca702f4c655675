#pragma once

#include "config/ProfileStore.h"
#include "platform/Clock.h"
#include "simlink/actions/EventOutput.h"
#include "simlink/channel/cSession.h"

// What the logics work with.
struct LogicServices {
    cSession& session;
    EventOutput& output;
    ProfileStore& profiles;
    Clock& clock;
};

// What the logics of all panels have in common: how the program drives them.
class cPanelLogic {
  public:
    virtual ~cPanelLogic() = default;

    // Once the panel's control is connected.
    virtual void StartUp() = 0;
    // On every successful tick. Works on what the tick has read, and makes no exchange of its own.
    virtual void RefreshData() = 0;
    // After the bindings or the special mode have changed.
    virtual void SetupChanged() = 0;
    // Loads the bindings of the current profile anew.
    virtual void LoadSetup() = 0;
};
