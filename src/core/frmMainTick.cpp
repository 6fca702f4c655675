// The tick: how frmMain finds the simulator, follows it, and notices that it has gone.
#include "base/Number.h"
#include "core/frmMain.h"

namespace {

constexpr uint32_t kConnectedIntervalMs = 10;
constexpr int32_t kTitleLength = 60;

constexpr const char* kSimulatorNames[] = {"Any",    "FS98",   "FS2K", "CFS2", "CFS1", "FLY",
                                           "FS2002", "FS2004", "FSX",  "ESP",  "P3D"};

std::string SimulatorName(int32_t number) {
    const auto index = static_cast<size_t>(number);
    return index < std::size(kSimulatorNames) ? kSimulatorNames[index] : FormatInteger(number);
}

}  // namespace

void frmMain::timerFSUIPC_Timer() {
    Files.Tick();
    // The user may have been asked for a profile, and have quit meanwhile.
    if (IsUnloaded()) return;
    if (services_.session.FSConnected) {
        Poll();
    } else {
        TryToConnect();
    }
}

void frmMain::TryToConnect() {
    cSession& session = services_.session;
    int32_t result = 0;
    if (!session.Fsuipc.FSUIPC_Open(0, result)) return;
    session.FSConnected = true;
    trayMain.SetIcon(TrayIcon::Green);
    trayMain.SetToolTip("Connected...");
    Status.Text = "FSUIPC Status: Connected";
    ShowVersions();
    session.OffsetTable.RegisterOffset(0x3D00, 9, "AIRCRAFT", kTitleLength);
    timerFSUIPC.SetInterval(kConnectedIntervalMs);
    for (const PanelKind kind : {PanelKind::Radio, PanelKind::Multi}) {
        for (const auto& unit : Panels[kind]) unit->control->GetPositions();
    }
}

void frmMain::ShowVersions() {
    cOFFSET version(services_.session.Fsuipc, 0x3304, 5);
    version.DirectRead(true);
    FSUIPCver.Text = "FSUIPC Version: " + FormatPlain(version.GetBCDHigh() / 1000.0, 3) +
                     static_cast<char>(48 + version.ByteN(1));
    version.Offset = 0x3308;
    version.SetDataType(3);
    version.DirectRead(true);
    FSver.Text = "Flight Simulator Version: " + SimulatorName(version.IntegerData());
    services_.session.FSVersion = RoundTo<uint8_t>(version.Data());
}

void frmMain::Poll() {
    cSession& session = services_.session;
    if (session.OffsetTable.Empty()) return;
    session.OffsetTable.QueueReads();
    int32_t result = 0;
    if (!session.Fsuipc.FSUIPC_Process(result)) {
        LoseSession();
        return;
    }
    detectedAircraft_ = aircraftTitle_.Text();
    const bool bound = BindDetectedAircraft();
    if (!session.FSConnected) return;  // binding may let messages run
    ShowAircraft();
    // What the logics of another profile have registered is read by the next tick.
    if (bound) return;
    Panels.ForEachLogic([](cPanelLogic& logic) { logic.RefreshData(); });
}

// An empty title, as while a flight loads, is no aircraft.
bool frmMain::BindDetectedAircraft() {
    if (detectedAircraft_.empty() || detectedAircraft_ == Binding.CurrentAircraft()) return false;
    return Binding.BindAircraft(detectedAircraft_);
}

void frmMain::ShowAircraft() {
    if (detectedAircraft_ == shownAircraft_) return;
    shownAircraft_ = detectedAircraft_;
    Aircraft.Text = "Aircraft in use: " + detectedAircraft_;
}

void frmMain::LoseSession() {
    services_.session.FSConnected = false;
    timerFSUIPC.SetInterval(kWaitingIntervalMs);
    trayMain.SetIcon(TrayIcon::Yellow);
    trayMain.SetToolTip("Waiting FS connection...");
    ShowDisconnected();
    services_.session.Fsuipc.FSUIPC_Close();
    // The BIP Panels keep what they show.
    for (const PanelKind kind : {PanelKind::Radio, PanelKind::Multi, PanelKind::Switch}) {
        for (const auto& unit : Panels[kind]) unit->control->TurnOff();
    }
    if (services_.generalSetup.AutoQuit) {
        timerFSUIPC.SetEnabled(false);
        Unload();
    }
    services_.platform.loop.RunPending();
    // Something that ran just now may have opened a box, and the simulator come back under it.
    if (!services_.session.FSConnected) services_.session.Fsuipc.FSUIPC_Initialize();
}
