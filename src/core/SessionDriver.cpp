#include "core/SessionDriver.h"

#include "base/Number.h"

namespace {

constexpr int32_t kTitleLength = 60;
// So much of a tick for what waits; most of it are exchanges of its own.
constexpr uint32_t kCatchUpMs = 5;

constexpr const char* kSimulatorNames[] = {"Any",    "FS98",   "FS2K", "CFS2", "CFS1", "FLY",
                                           "FS2002", "FS2004", "FSX",  "ESP",  "P3D"};

std::string SimulatorName(int32_t number) {
    const auto index = static_cast<size_t>(number);
    return index < std::size(kSimulatorNames) ? kSimulatorNames[index] : FormatInteger(number);
}

}  // namespace

SessionDriver::SessionDriver(const Parts& parts)
    : parts_(parts), aircraftTitle_(parts.session.OffsetTable, "AIRCRAFT") {}

void SessionDriver::Tick() {
    if (parts_.session.FSConnected) {
        Poll();
    } else {
        TryToConnect();
    }
}

void SessionDriver::Close() {
    if (parts_.session.FSConnected) parts_.output.ReleaseAll();
    parts_.session.Fsuipc.FSUIPC_Close();
    parts_.session.FSConnected = false;
}

void SessionDriver::TryToConnect() {
    cSession& session = parts_.session;
    int32_t result = 0;
    if (!session.Fsuipc.FSUIPC_Open(0, result)) return;
    session.FSConnected = true;
    ++session.Link;
    session.FSVersion = 0;
    channelVersionRead_ = simulatorRead_ = false;
    toldAircraft_.reset();
    Connected.Raise();
    AskVersions();
    session.OffsetTable.RegisterOffset(0x3D00, 9, "AIRCRAFT", kTitleLength);
    for (const PanelKind kind : {PanelKind::Radio, PanelKind::Multi}) {
        for (const auto& unit : parts_.panels[kind]) unit->control->GetPositions();
    }
}

void SessionDriver::AskVersions() {
    if (channelVersionRead_ && simulatorRead_) return;
    cSession& session = parts_.session;
    cOFFSET version(session.Fsuipc, 0x3304, 5);
    if (!channelVersionRead_ && version.DirectRead(true)) {
        channelVersionRead_ = true;
        ChannelVersionRead.Raise(FormatPlain(version.GetBCDHigh() / 1000.0, 3) +
                                 static_cast<char>(48 + version.ByteN(1)));
    }
    cOFFSET simulator(session.Fsuipc, 0x3308, 3);
    if (!simulatorRead_ && simulator.DirectRead(true)) {
        simulatorRead_ = true;
        session.FSVersion = RoundTo<uint8_t>(simulator.Data());
        SimulatorRead.Raise(SimulatorName(simulator.IntegerData()));
    }
}

void SessionDriver::Poll() {
    cSession& session = parts_.session;
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
    TellAircraft();
    // What the logics of another profile have registered is read by the next tick.
    if (bound) return;
    parts_.panels.ForEachLogic([](cPanelLogic& logic) { logic.RefreshData(); });
    session.OffsetTable.ForgetChanges();
    CatchUp();
}

// An empty title, as while a flight loads, is no aircraft.
bool SessionDriver::BindDetectedAircraft() {
    AircraftBinding& binding = parts_.binding;
    if (detectedAircraft_.empty() || detectedAircraft_ == binding.CurrentAircraft()) return false;
    return binding.BindAircraft(detectedAircraft_);
}

void SessionDriver::TellAircraft() {
    if (detectedAircraft_ == toldAircraft_) return;
    toldAircraft_ = detectedAircraft_;
    AircraftSeen.Raise(detectedAircraft_);
}

// Each of these may be an exchange of its own; mostly there is nothing to do.
void SessionDriver::CatchUp() {
    AskVersions();
    parts_.binding.AskForGear();
    const uint32_t start = parts_.clock.GetTickCount();
    while (parts_.session.Acts.DoFirst() && parts_.clock.GetTickCount() - start < kCatchUpMs) {
    }
}

void SessionDriver::LoseSession() {
    cSession& session = parts_.session;
    session.FSConnected = false;
    Lost.Raise();
    session.Fsuipc.FSUIPC_Close();
    parts_.output.SessionLost();
    // The BIP Panels keep what they show.
    for (const PanelKind kind : {PanelKind::Radio, PanelKind::Multi, PanelKind::Switch}) {
        for (const auto& unit : parts_.panels[kind]) unit->control->TurnOff();
    }
    Gone.Raise();
    parts_.loop.RunPending();
    // Something that ran just now may have opened a box, and the simulator come back under it.
    if (!session.FSConnected) session.Fsuipc.FSUIPC_Initialize();
}
