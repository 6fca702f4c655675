#include "core/frmMain.h"

#include <utility>

#include "base/Number.h"
#include "core/PanelSetup.h"
#include "toolkit/UiBackend.h"
#include "ui/Layout.h"
#include "ui/frmGeneralSetup.h"
#include "ui/profiles/frmAircraftProfile.h"
#include "ui/profiles/frmProfilesSetup.h"

namespace {

// How often a simulator is looked for, and how often one that is there is asked.
constexpr uint32_t kWaitingIntervalMs = 1000;
constexpr uint32_t kConnectedIntervalMs = 10;

constexpr Color kButtonFace = 0x8000000F;
constexpr Color kShadow = 0x80000010;

const MsgBoxRequest kQuitRequest = {"           Are you sure ?\nQuitting will stop the panels.",
                                    " ORVO - Quit request", MsgBoxIcon::Question,
                                    MsgBoxButtons::OkCancel};

}  // namespace

frmMain::frmMain(const MainServices& services)
    : PlacedForm(services.ForWindows(), {&cSetupHolder::MainFormTop, &cSetupHolder::MainFormLeft}),
      tabMain(this),
      picOrder(this),
      picMain(&picOrder),
      Frame1(&picMain),
      labProfileInUse(&Frame1),
      cmbProfiles(&Frame1),
      btnProfiles(&Frame1),
      Frame2(&picMain),
      btnSetup(&Frame2),
      btnQuit(&picMain),
      picMinimize(&picMain),
      imaBigOrvo(&picMain),
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
      Files(services.platform.clock, services.platform.process, services.generalSetup,
            services.windows, Binding),
      Driver({services.session, services.output, services.platform.clock, services.platform.loop,
              Panels, Binding}),
      services_(services),
      minimizeBorder_(&picMinimize),
      minimizeMark_(&picMinimize) {
    Caption = "  ORVO    v0.5.1";
    FirstFocus = &tabMain;  // where a key that was meant for another window does no harm
    PlaceAll();
    tabMain.Click.Connect([this] { SelectPage(); });
    btnSetup.Click.Connect([this] { OpenGeneralSetup(); });
    btnProfiles.Click.Connect([this] { OpenProfilesSetup(); });
    btnQuit.Click.Connect([this] { AskQuit(); });
    picMinimize.Click.Connect([this] { Hide(); });
    timerFSUIPC.Tick.Connect([this] { timerFSUIPC_Timer(); });
    FollowSession();
    Binding.AskForProfile = [this](const std::string& title) { return AskForProfile(title); };
    trayDblClick_ = trayMain.DblClick.Connect([this] {
        if (!services_.windows.ModalWindowOpen) Show();
    });
    QueryUnload.Connect([this] { Files.SaveAll(); });  // the place is among them
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

void frmMain::PlaceAll() {
    tabMain.AddTab(1, "General", "General");
    tabMain.Move(30, 30, 11160, 3360);
    picOrder.Move(120, 420, 10995, 2895);
    picMain.Move(0, 0, 10995, 2895);
    PlaceControls({
        {Frame1, 180, 150, 5100, 1590, "Profiles Management"},
        {labProfileInUse, 240, 330, 4620, 240, "Profile in use"},
        {cmbProfiles, 240, 585, 4620, 300},
        {btnProfiles, 240, 1035, 1860, 390, "Manage Profiles"},
        {Frame2, 180, 1860, 5100, 870, "General Options"},
        {btnSetup, 240, 315, 1860, 390, "Setup"},
        {btnQuit, 9480, 2340, 1320, 390, "Quit"},
        {picMinimize, 10500, 150, 300, 300},
        {imaBigOrvo, 6900, 450, 1920, 1920},
    });
    picMinimize.ToolTip = "Hide this window";
    picMinimize.BackColor = kButtonFace;
    minimizeBorder_.Kind = ShapeKind::RoundedRectangle;
    minimizeBorder_.BorderColor = kShadow;
    minimizeBorder_.Move(0, 0, 300, 300);
    minimizeMark_.BorderWidth = 30;
    minimizeMark_.X1 = 90;
    minimizeMark_.X2 = 210;
    minimizeMark_.Y1 = 195;
    minimizeMark_.Y2 = 195;
    emblem_.emplace(imaBigOrvo);
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
    Place();
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
    // The rows of the panels' tabs have made it higher.
    if (tabMain.MoreRows() != 0) Place();
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

void frmMain::OpenGeneralSetup() {
    if (MayOpenWindow()) frmGeneralSetup(services_.ForWindows()).OpenModally();
}

void frmMain::OpenProfilesSetup() {
    Binding.TryAgain();
    if (!MayOpenWindow()) return;
    if (!services_.profiles.ListsAreRead()) {
        TellUnlessDone(services_.ui, services_.profiles.Unread());
        return;
    }
    Binding.ListsWillBeEdited();
    {
        frmProfilesSetup window(services_.ForProfiles());
        const ScopedConnection follow =
            Binding.AircraftAdded.Connect([&window] { window.FollowLists(); });
        window.OpenModally();
    }
    if (!IsUnloaded()) Binding.ListsEdited();
}

// A question that is closed with the program isn't an answer.
std::optional<std::string> frmMain::AskForProfile(const std::string& title) {
    frmAircraftProfile window(services_.ForProfiles(), title);
    window.OpenModally();
    if (IsUnloaded() && window.ChosenProfile.empty()) return std::nullopt;
    return window.ChosenProfile;
}

void frmMain::ServeSetupRequest(PanelUnit& unit) {
    if (!MayOpenWindow()) return;
    services_.windows.SetupPanelIndex = unit.number;
    {
        const ModalWindow modal(services_.windows);
        OpenPanelSetup(unit, Panels, services_.ForSetup());
    }
    // Without a profile the bindings stay as they are.
    if (!unit.logic || !services_.profiles.ProfileInUse()) return;
    services_.session.Acts.Drop(PendingActs::Lasts::Binding);
    unit.logic->LoadSetup();
    if (unit.kind == PanelKind::Switch) return;
    unit.logic->SetupChanged();
    if (unit.kind != PanelKind::Multi) return;
    PanelLists::ForEachLogicOf(Panels[PanelKind::Radio],
                               [](cPanelLogic& logic) { logic.SetupChanged(); });
}
