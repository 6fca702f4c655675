#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

#include "config/ProfileStore.h"
#include "config/cSetupHolder.h"
#include "core/AircraftBinding.h"
#include "core/PanelUnit.h"
#include "core/PendingFiles.h"
#include "core/SessionDriver.h"
#include "platform/Platform.h"
#include "platform/Timer.h"
#include "simlink/actions/EventOutput.h"
#include "simlink/channel/cSession.h"
#include "toolkit/ComboBox.h"
#include "toolkit/CommandButton.h"
#include "toolkit/Container.h"
#include "toolkit/Form.h"
#include "toolkit/Frame.h"
#include "toolkit/Picture.h"
#include "toolkit/StatusBar.h"
#include "toolkit/TabStrip.h"
#include "ui/Emblem.h"
#include "ui/PanelSetupForm.h"
#include "ui/PlacedForm.h"
#include "ui/WindowState.h"
#include "ui/ctlTrayArea.h"
#include "ui/profiles/ProfileWindowServices.h"

// What frmMain works with; all of it outlives the window.
struct MainServices {
    const Platform& platform;
    UiBackend& ui;
    cSession& session;
    EventOutput& output;
    cSetupHolder& generalSetup;
    ProfileStore& profiles;
    WindowState& windows;
    const std::vector<ScreenRect>& monitorRects;

    LogicServices ForLogics() const { return {session, output, profiles, platform.clock}; }
    WindowServices ForWindows() const {
        return {ui,           platform.loop, platform.clock, platform.screen,
                monitorRects, generalSetup,  windows};
    }
    SetupServices ForSetup() const { return {{ForWindows(), session, output}, profiles}; }
    ProfileWindowServices ForProfiles() const { return {ForWindows(), profiles}; }
};

// The program's one permanent window, hidden until the user double-clicks its icon in the
// notification area: one page of general controls, one page for each panel, and the state of the
// session. It owns the panels and the timer that drives the whole link to the simulator.
class frmMain : public PlacedForm {
  public:
    explicit frmMain(const MainServices& services);
    ~frmMain() override;

    void LoadForm();

    // Adds a tab at `tab` and a panel of its own, hidden, under the next number of its kind.
    PanelUnit& AddPanel(PanelKind kind, int32_t tab);

    // Puts the first page in place and starts the search for the simulator.
    void ArmTimer();

    PanelLists Panels;

    TabStrip tabMain;
    Container picOrder;
    Container picMain;
    Frame Frame1;
    Label labProfileInUse;
    ComboBox cmbProfiles;
    CommandButton btnProfiles;
    Frame Frame2;
    CommandButton btnSetup;
    CommandButton btnQuit;
    Picture picMinimize;
    Picture imaBigOrvo;
    StatusBar barMain;
    StatusBar::Panel& Status;
    StatusBar::Panel& FSUIPCver;
    StatusBar::Panel& FSver;
    StatusBar::Panel& Aircraft;
    ctlTrayArea trayMain;
    Timer timerFSUIPC;
    AircraftBinding Binding;
    PendingFiles Files;
    SessionDriver Driver;

  private:
    void PlaceAll();
    void SelectPage();
    Control* PageOf(int32_t tab);
    void AskQuit();
    void CloseDown();
    void EndPanels();
    // One configuration window at a time.
    bool MayOpenWindow() const { return !IsUnloaded() && !services_.windows.ModalWindowOpen; }
    void OpenGeneralSetup();
    void OpenProfilesSetup();
    std::optional<std::string> AskForProfile(const std::string& title);
    void ServeSetupRequest(PanelUnit& unit);

    void FollowSession();
    void timerFSUIPC_Timer();
    void ShowConnected();
    void ShowWaiting();

    const MainServices services_;
    ScopedConnection trayDblClick_;
    int32_t previousTab_ = 1;
    Shape minimizeBorder_;
    Line minimizeMark_;
    std::optional<Emblem> emblem_;
    // Logics of a closed window: they may have been closed from within one of their own calls.
    std::vector<std::unique_ptr<cPanelLogic>> releasedLogics_;
};
