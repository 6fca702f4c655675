#include "bench/virtual/RandomPilot.h"

#include <algorithm>

namespace {

constexpr uint32_t kTickMs = 10;
constexpr uint32_t kLongPress = 60;  // reports
constexpr uint32_t kReadHeader = 16;

// The version, the title, and what only the program writes.
constexpr struct {
    uint32_t first, last;
} kFixedOffsets[] = {{0x3304, 0x330B}, {0x3D00, 0x3DFF}, {0x3340, 0x3363}};

const char* const kTitles[] = {"Baron 58", "Learjet 45", "[Tricky];=%41\"x\"", "B737-800 \xC4\xD6",
                               "",         "baron 58",   "Maule Orion",        "Z \"quoted\" 1"};

const char* BenchName(PanelKind kind) {
    constexpr const char* kNames[] = {"radio", "multi", "switch", "bip"};
    return kNames[static_cast<size_t>(kind)];
}

}  // namespace

const RandomPilot::Happening RandomPilot::kHappenings[] = {
    {2, &RandomPilot::ChangeValues},       {700, &RandomPilot::FlyAircraft},
    {150, &RandomPilot::WorkMainWindow},   {700, &RandomPilot::OpenWindow},
    {7000, &RandomPilot::LoseSimulator},   {100, &RandomPilot::FindSimulator},
    {5000, &RandomPilot::FallSilent},      {6000, &RandomPilot::AnswerOddly},
    {6000, &RandomPilot::DamageReply},     {1000, &RandomPilot::RefuseReports},
    {1000, &RandomPilot::RefusePositions}, {1000, &RandomPilot::RefuseTrayIcon},
    {800, &RandomPilot::HoldFile},         {500, &RandomPilot::SendAnyReport},
};

RandomPilot::Panel::Panel(PanelKind panelKind, VirtualDevice& on, int number)
    : kind(panelKind), device(on), controls(*bench::FindPanelKind(BenchName(panelKind)), number) {
    for (const bench::PanelControl& control : bench::PanelControls()) {
        if (control.kind == BenchName(kind)) choice.push_back(&control);
    }
    device.positions = controls.Positions();
}

RandomPilot::RandomPilot(VirtualCockpit& cockpit, Choices& choices)
    : User(cockpit.ui, choices),
      cockpit_(cockpit),
      machine_(cockpit.machine),
      choices_(choices),
      reading_(machine_.server.Reading.Connect([this](uint32_t offset, uint32_t) {
          const bool fixed = std::ranges::any_of(kFixedOffsets, [offset](const auto& range) {
              return offset >= range.first && offset <= range.last;
          });
          const auto place = std::ranges::lower_bound(readOffsets_, offset);
          if (fixed || (place != readOffsets_.end() && *place == offset)) return;
          readOffsets_.insert(place, offset);
      })) {
    User.Meanwhile = [this] { Tick(); };
}

RandomPilot::Panel& RandomPilot::Plug(PanelKind kind) {
    const auto number = static_cast<int>(std::ranges::count(panels_, kind, &Panel::kind)) + 1;
    return panels_.emplace_back(kind, cockpit_.Plug(kind, number), number);
}

void RandomPilot::Tick() {
    ReportAll();
    for (const Happening& each : kHappenings) {
        if (choices_.OneIn(each.onceIn)) (this->*each.happen)();
    }
    Rest();
}

void RandomPilot::Something() {
    const uint32_t what = choices_.Below(std::size(kHappenings) + 4);
    if (what < std::size(kHappenings)) {
        (this->*kHappenings[what].happen)();
    } else {
        for (uint32_t left = choices_.Below(8); left > 0; --left) ReportAll();
    }
    constexpr uint32_t kPauses[] = {1, 1, 1, 1, 2, 2, 5, 60};
    for (uint32_t left = choices_.OneOf(kPauses); left > 0; --left) Rest();
}

void RandomPilot::Rest() {
    machine_.loop.Advance(kTickMs);
    if (AfterTick) AfterTick();
}

void RandomPilot::ReportAll() {
    for (Panel& panel : panels_) {
        if (!panel.choice.empty()) Report(panel);
    }
}

// Knobs are turned for a while; what is pressed comes up with the next report, or much later.
void RandomPilot::Report(Panel& panel) {
    if (panel.held > 0) {
        --panel.held;
        return;
    }
    if (panel.down != 0) {
        return Send(panel, panel.controls.Change(0, std::exchange(panel.down, 0)));
    }
    const bench::PanelControl* control = panel.turning;
    if (!control || choices_.OneIn(16)) control = choices_.OneOf(panel.choice);
    if (control->act != bench::PanelAct::Set) panel.down = control->mask;
    if (control->act == bench::PanelAct::Press && choices_.OneIn(16)) panel.held = kLongPress;
    panel.turning = control->act == bench::PanelAct::Turn ? control : nullptr;
    Send(panel, panel.controls.Change(control->bits, control->mask));
}

void RandomPilot::Send(Panel& panel, const bench::VirtualPanel::Report& report) {
    panel.device.positions = panel.controls.Positions();
    panel.device.SendReport({report[0], report[1], report[2], report[3]});
}

// One that no panel sends: any bits at all, or too few.
void RandomPilot::SendAnyReport() {
    if (panels_.empty()) return;
    VirtualDevice& device = choices_.OneOf(panels_).device;
    if (choices_.OneIn(8)) return device.SendReport({choices_.Byte(), choices_.Byte()});
    device.SendReport({choices_.Byte(), choices_.Byte(), choices_.Byte(), choices_.Byte()});
}

void RandomPilot::ChangeValues() {
    if (readOffsets_.empty()) return;
    const uint32_t offset = choices_.OneOf(readOffsets_);
    if (choices_.OneIn(4)) return machine_.server.Set<uint32_t>(offset, choices_.Below(3));
    for (uint32_t i = 0; i < 4; ++i) machine_.server.Set<uint8_t>(offset + i, choices_.Byte());
}

void RandomPilot::FlyAircraft() { cockpit_.SetTitle(choices_.OneOf(kTitles)); }

void RandomPilot::WorkMainWindow() { User.Act(cockpit_.Window()); }

void RandomPilot::OpenWindow() {
    frmMain& window = cockpit_.Window();
    if (cockpit_.ui.IsBlocked(window) || window.IsUnloaded()) return;
    const uint32_t which = choices_.Below(2 + kPanelIdentities.size());
    if (which == 0) return window.btnSetup.Click.Raise();
    if (which == 1) return window.btnProfiles.Click.Raise();
    const PanelLists::List& list = window.Panels[kPanelIdentities[which - 2].kind];
    if (!list.empty()) choices_.OneOf(list)->control->SetupRequest.Raise();
}

void RandomPilot::LoseSimulator() {
    machine_.ipc.RemoveWindows();
    simulator_ = false;
}

void RandomPilot::FindSimulator() {
    if (simulator_) return;
    machine_.ipc.AddWindow(choices_.OneIn(2) ? "UIPCMAIN" : "FS98MAIN");
    simulator_ = true;
}

// For some calls only, or until the session is given up.
void RandomPilot::FallSilent() {
    machine_.ipc.TimeOut(choices_.Between(1, 13), choices_.OneIn(2) ? 0 : 1460);
}

void RandomPilot::AnswerOddly() {
    machine_.ipc.AnswerWith(choices_.Below(3), choices_.Between(1, 3));
}

// In the first record's header: values that a reply brings are the simulator's own affair.
void RandomPilot::DamageReply() {
    const uint32_t at = choices_.Below(kReadHeader);
    const uint8_t byte = choices_.Byte();
    machine_.ipc.AfterServing([&machine = machine_, at, byte](std::span<uint8_t> block) {
        block[at] = byte;
        machine.loop.Post([&machine] { machine.ipc.AfterServing({}); });
    });
}

void RandomPilot::RefuseReports() {
    machine_.hid.Refuse(HidCall::SetFeature, choices_.Between(0, 40));
}
void RandomPilot::RefusePositions() {
    machine_.hid.Refuse(HidCall::GetFeature, choices_.Between(0, 2));
}
void RandomPilot::RefuseTrayIcon() { machine_.tray.Refuse(choices_.Between(0, 2)); }

void RandomPilot::HoldFile() {
    const auto paths = machine_.files.Paths();
    if (!paths.empty()) machine_.files.Hold(choices_.OneOf(paths), choices_.Between(1, 40));
}

void RandomPilot::SetRight() {
    for (Panel& panel : panels_) {
        panel.held = 0;
        if (panel.down != 0) Report(panel);
    }
    FindSimulator();
    machine_.ipc.TimeOut(0);
    machine_.ipc.AnswerWith(0, 0);
    machine_.ipc.AfterServing({});
    machine_.hid.Refuse(HidCall::SetFeature, 0);
    machine_.hid.Refuse(HidCall::GetFeature, 0);
    machine_.tray.Refuse(0);
    machine_.files.Hold("", 0);
}
