#include "core/frmMain.h"

#include <utility>

#include "base/Number.h"
#include "toolkit/UiBackend.h"
#include "ui/PlaceForm.h"

namespace {

// How often a simulator is looked for, and how often one that is there is asked.
constexpr uint32_t kWaitingIntervalMs = 1000;
constexpr uint32_t kConnectedIntervalMs = 10;

const MsgBoxRequest kQuitRequest = {"           Are you sure ?\nQuitting will stop the panels.",
                                    " ORVO - Quit request", MsgBoxIcon::Question,
                                    MsgBoxButtons::OkCancel};

}  // namespace

frmMain::frmMain(const MainServices& services)
    : Form(services.ui),
      tabMain(this),
      picOrder(this),
      picMain(&picOrder),
      Frame1(&picMain),
      cmbProfiles(&Frame1),
      labProfileInUse(&Frame1),
      btnQuit(&picMain),
      barMain(this),
      Status(barMain.AddPanel("Status", "Connection status between Orvo and Flight Simulator", 23)),
      FSUIPCver(barMain.AddPanel(
          "FSUIPCver", "FSUIPC version installed in currently loaded Flight Simulator", 20)),
      FSver(barMain.AddPanel("FSver", "Currently loaded Flight Simulator Version", 27)),
      Aircraft(barMain.AddPanel("Aircraft",
                                "Name of the aircraft currently in use in Flight Simulator", 30)),
      trayMain(services.platform.tray),
      timerFSUIPC(services.platform.loop, kWaitingIntervalMs),
      Binding({services.session, services.profiles, services.generalSetup, services.windows,
               cmbProfiles, Panels}),
      Files(services.platform.clock, services.platform.process, services.generalSetup, Binding),
      Driver({services.session, services.output, services.platform.clock, services.platform.loop,
              Panels, Binding}),
      services_(services) {
    Caption = "  ORVO    v0.5.1";
    PlaceControls();
    tabMain.Click.Connect([this] { SelectPage(); });
    btnQuit.Click.Connect([this] { AskQuit(); });
    timerFSUIPC.Tick.Connect([this] { timerFSUIPC_Timer(); });
    FollowSession();
    trayDblClick_ = trayMain.DblClick.Connect([this] {
        if (!services_.windows.ModalWindowOpen && !IsUnloaded()) Show();
    });
    QueryUnload.Connect([this] { SavePosition(); });
    Unloaded.Connect([this] { CloseDown(); });
    SessionEnding.Connect([this] { EndPanels(); });
}

// Each panel ends its connection, which lets messages run: so while all else is still there.
frmMain::~frmMain() {
    timerFSUIPC.SetEnabled(false);
    services_.session.FSConnected = false;
    EndPanels();
    for (const PanelIdentity& identity : kPanelIdentities) {
        for (auto& unit : Panels[identity.kind]) unit->control.reset();
    }
}

void frmMain::PlaceControls() {
    tabMain.AddTab(1, "General", "General");
    tabMain.Move(30, 30, 11160, 3360);
    picOrder.Move(120, 420, 10995, 2895);
    picMain.Move(0, 0, 10995, 2895);
    Frame1.Caption = "Profiles Management";
    Frame1.Move(180, 150, 5100, 1980);
    labProfileInUse.Caption = "Profile in use";
    labProfileInUse.Move(240, 390, 4620, 240);
    cmbProfiles.Move(240, 660, 4620, 345);
    btnQuit.Caption = "Quit";
    btnQuit.Move(9480, 2280, 1260, 420);
}

void frmMain::LoadForm() {
    services_.session.Fsuipc.FSUIPC_Initialize();
    services_.platform.loop.RunPending();
    services_.session.FSConnected = false;
    ShowWaiting();
    trayMain.SetVisible(true);
    Binding.FillProfileCombo();
    cmbProfiles.SetListIndex(cmbProfiles.ListCount() - 1);
    Width = 11325;
    Height = 4208;
    PlaceForm(*this, services_.generalSetup.MainFormLeft, services_.generalSetup.MainFormTop,
              services_.monitorRects, services_.platform.screen);
    if (!services_.generalSetup.IsRead()) placedBlind_ = {Left, Top};
    Load();
}

void frmMain::timerFSUIPC_Timer() {
    Files.Tick();
    // The user may have been asked for a profile, and have quit meanwhile.
    if (!IsUnloaded()) Driver.Tick();
}

void frmMain::FollowSession() {
    Driver.Connected.Connect([this] { ShowConnected(); });
    Driver.ChannelVersionRead.Connect(
        [this](const std::string& version) { FSUIPCver.Text = "FSUIPC Version: " + version; });
    Driver.SimulatorRead.Connect(
        [this](const std::string& name) { FSver.Text = "Flight Simulator Version: " + name; });
    Driver.AircraftSeen.Connect(
        [this](const std::string& title) { Aircraft.Text = "Aircraft in use: " + title; });
    Driver.Lost.Connect([this] { ShowWaiting(); });
    Driver.Gone.Connect([this] {
        if (!services_.generalSetup.AutoQuit) return;
        timerFSUIPC.SetEnabled(false);
        Unload();
    });
}

void frmMain::ShowConnected() {
    trayMain.SetIcon(TrayIcon::Green);
    trayMain.SetToolTip("Connected...");
    Status.Text = "FSUIPC Status: Connected";
    timerFSUIPC.SetInterval(kConnectedIntervalMs);
}

void frmMain::ShowWaiting() {
    timerFSUIPC.SetInterval(kWaitingIntervalMs);
    trayMain.SetIcon(TrayIcon::Yellow);
    trayMain.SetToolTip("Waiting FS connection...");
    Status.Text = "FSUIPC Status: Disconnected";
    FSUIPCver.Text = "FSUIPC Version:";
    FSver.Text = "Flight Simulator Version:";
    Aircraft.Text = "Aircraft in use:";
}

PanelUnit& frmMain::AddPanel(PanelKind kind, int32_t tab) {
    const DeviceServices devices = {services_.platform.clock, services_.platform.loop,
                                    services_.platform.hid, services_.platform.deckhub,
                                    services_.generalSetup};
    PanelLists::List& list = Panels[kind];
    const auto number = static_cast<int16_t>(list.size() + 1);
    const PanelIdentity& identity = kPanelIdentities[static_cast<size_t>(kind)];
    tabMain.AddTab(tab, identity.key + FormatInteger(number),
                   std::string(identity.name) + " " + FormatInteger(number));
    list.push_back(MakePanelUnit(kind, number, picOrder, devices, services_.session));
    PanelUnit& unit = *list.back();
    unit.control->Visible = false;
    unit.control->SetupRequest.Connect([this, &unit] { ServeSetupRequest(unit); });
    Load();
    return unit;
}

void frmMain::ArmTimer() {
    picMain.Left = 0;
    picMain.Top = 0;
    BringToFront(picOrder);
    services_.platform.loop.RunPending();
    timerFSUIPC.SetEnabled(!IsUnloaded());
}

void frmMain::SelectPage() {
    if (Control* left = PageOf(previousTab_)) left->Visible = false;
    previousTab_ = tabMain.SelectedItem();
    if (Control* page = PageOf(previousTab_)) page->Visible = true;
}

// The pages stand in the order of the tabs: the general one, then the panels kind by kind.
Control* frmMain::PageOf(int32_t tab) {
    if (tab == 1) return &picMain;
    auto n = static_cast<size_t>(tab - 2);
    for (const PanelIdentity& identity : kPanelIdentities) {
        const PanelLists::List& list = Panels[identity.kind];
        if (n < list.size()) return list[n]->control.get();
        n -= list.size();
    }
    return nullptr;
}

void frmMain::AskQuit() {
    if (services_.ui.MsgBox(kQuitRequest) == MsgBoxResult::Cancel) return;
    timerFSUIPC.SetEnabled(false);
    Unload();
}

void frmMain::SavePosition() {
    // A place that nobody chose isn't saved over the one in a file that couldn't be read.
    if (placedBlind_ != std::pair<int32_t, int32_t>(Left, Top)) {
        services_.generalSetup.MainFormTop = Top;
        services_.generalSetup.MainFormLeft = Left;
    }
    Files.SaveAll();
}

void frmMain::CloseDown() {
    timerFSUIPC.SetEnabled(false);
    Driver.Close();
    for (const PanelIdentity& identity : kPanelIdentities) {
        for (auto& unit : Panels[identity.kind]) {
            if (unit->logic) releasedLogics_.push_back(std::move(unit->logic));
        }
    }
    trayMain.SetVisible(false);
    services_.platform.loop.Quit();
}

// The controls stay: the end of the user's session may come from within one of their calls.
void frmMain::EndPanels() {
    for (const PanelIdentity& identity : kPanelIdentities) {
        for (auto& unit : Panels[identity.kind]) unit->control->End();
    }
}

void frmMain::ServeSetupRequest(PanelUnit& unit) {
    if (IsUnloaded()) return;
    services_.windows.SetupPanelIndex = unit.number;
    if (const auto& open = SetupWindows[static_cast<size_t>(unit.kind)]) {
        const ModalWindow modal(services_.windows);
        open();
    }
    if (!unit.logic) return;
    services_.session.Acts.Drop(PendingActs::Lasts::Binding);
    unit.logic->LoadSetup();
    if (unit.kind == PanelKind::Switch) return;
    unit.logic->SetupChanged();
    if (unit.kind != PanelKind::Multi) return;
    PanelLists::ForEachLogicOf(Panels[PanelKind::Radio],
                               [](cPanelLogic& logic) { logic.SetupChanged(); });
}
