#include "bench/soak/SoakFlight.h"

#include <cstdio>
#include <cstdlib>

#include "bench/virtual/PanelWatch.h"

// Of the address sanitizer.
extern "C" size_t __sanitizer_get_current_allocated_bytes();

namespace {

constexpr int kPanelsOfAKind = 2;
constexpr uint64_t kTicksToRest = 6000;
// Clicks of fast knobs go out one a millisecond, and presses one in 50.
constexpr int kMostRest = 60000;
constexpr int kSettled = 100;
constexpr size_t kMemoryMayGrow = 200000;  // bytes: what lists and files hold

constexpr const char* kQuit = "           Are you sure ?";

}  // namespace

SoakFlight::SoakFlight(const VirtualFiles& files, Choices& choices, SoakTally& tally)
    : choices_(choices), tally_(tally), pilot_(cockpit_, choices) {
    for (int n = 0; n < kPanelsOfAKind; ++n) {
        for (const PanelIdentity& identity : kPanelIdentities) {
            panels_.push_back(&pilot_.Plug(identity.kind));
            counting_.emplace_back(panels_.back()->device.Reported.Connect(
                [this](const VirtualDevice::Report&) { ++tally_.reports; }));
        }
    }
    cockpit_.machine.files = files;
    changesBefore_ = files.ChangeCount();
    pilot_.User.MaySay = [this](const MsgBoxRequest& request, MsgBoxResult said) {
        ++tally_.boxes;
        if (files_) files_->TakeAnswer(request, said);
        return !request.text.starts_with(kQuit) || choices_.OneIn(8);
    };
    cockpit_.ui.User = [this, use = cockpit_.ui.User](Form& form) {
        ++tally_.windows;
        use(form);
    };
}

void SoakFlight::Fly(uint64_t ticks) {
    ++tally_.starts;
    const auto paths = cockpit_.machine.files.Paths();
    if (choices_.OneIn(3))
        cockpit_.machine.files.Hold(choices_.OneOf(paths), choices_.Between(1, 60));
    if (!cockpit_.StartWithFiles()) Fault("the program doesn't start");
    files_.emplace(cockpit_.machine.files);
    buttons_.emplace(cockpit_);
    offsets_.emplace(cockpit_);
    counting_.emplace_back(
        cockpit_.Window().Driver.Connected.Connect([this] { ++tally_.sessions; }));
    counting_.emplace_back(cockpit_.Window().Driver.AircraftSeen.Connect(
        [this](const std::string&) { ++tally_.aircraft; }));
    pilot_.AfterTick = [this] { CheckTick(); };
    const uint64_t end = tally_.ticks + ticks;
    uint64_t rest = tally_.ticks + kTicksToRest;
    while (tally_.ticks < end && !HasEnded()) {
        pilot_.Tick();
        if (tally_.ticks < rest || HasEnded()) continue;
        CheckAtRest();
        rest = tally_.ticks + kTicksToRest;
    }
    End();
}

void SoakFlight::CheckTick() {
    ++tally_.ticks;
    for (RandomPilot::Panel* panel : panels_) {
        tally_.shown += panel->device.featureReports.size();
        NoFault(WrongReports(panel->kind, panel->device));
    }
    NoFault(buttons_->LeftDown());
    NoFault(offsets_->Stranger());
    NoFault(files_->Lost());
    const VirtualPlatform& machine = cockpit_.machine;
    if (machine.ipc.OpenViews() > 1 || machine.ipc.OpenMappings() > 1 ||
        machine.ipc.OpenAtoms() > 1 || machine.process.OpenCount() > 0) {
        Fault("the channel is opened twice, or a process is left open");
    }
    ForgetLogs();
}

// A moment without input, with all well: what was begun ends, and what is left over shows.
void SoakFlight::CheckAtRest() {
    ++tally_.rests;
    pilot_.SetRight();
    const auto settled = [this] {
        const cSession& session = cockpit_.program->Session;
        return session.FSConnected && session.Acts.Empty() && buttons_->AllHeld() &&
               !cockpit_.Window().Binding.Waits();
    };
    int since = 0;
    for (int tick = 0; tick < kMostRest && since < kSettled && !HasEnded(); ++tick) {
        pilot_.Rest();
        since = settled() ? since + 1 : 0;
    }
    if (HasEnded()) return;
    if (since < kSettled) Fault("the program doesn't come to rest");
    NoFault(FilesWatch::Unsaved(cockpit_));
    CheckResources();
}

void SoakFlight::CheckResources() {
    const VirtualPlatform& machine = cockpit_.machine;
    const size_t timers = machine.loop.TimerCount();
    if (timers != 1) Fault(std::to_string(timers) + " timers run at rest");
    if (machine.loop.WaitingCount() != 0) Fault("something waits at rest");
    if (machine.hid.OpenCount() != panels_.size() ||
        machine.deckhub.ReadingCount() != static_cast<int>(panels_.size())) {
        Fault("panels are opened twice, or closed");
    }
    const size_t memory = __sanitizer_get_current_allocated_bytes();
    if (memoryAtRest_ == 0) memoryAtRest_ = memory;
    if (memory > memoryAtRest_ + kMemoryMayGrow) {
        Fault("memory has grown from " + std::to_string(memoryAtRest_) + " to " +
              std::to_string(memory) + " bytes");
    }
}

// What is held in a simulator that answers is let go; and nothing of the machine stays open. Lost
// is only what a file that was held to the last couldn't take.
void SoakFlight::End() {
    const bool ended = HasEnded();
    pilot_.SetRight();
    const bool connected = cockpit_.program->Session.FSConnected;
    if (choices_.OneIn(2)) {
        cockpit_.Window().EndSession();
    } else {
        cockpit_.Window().Unload();
    }
    for (uint32_t word = 0x3340; connected && word < 0x3364; word += 4) {
        if (cockpit_.machine.server.Get<uint32_t>(word) != 0) Fault("a button is down at the end");
    }
    NoFault(files_->Lost());
    if (!ended) NoFault(FilesWatch::Unsaved(cockpit_));
    tally_.changes += static_cast<uint64_t>(cockpit_.machine.files.ChangeCount() - changesBefore_);
    offsets_.reset();
    buttons_.reset();
    counting_.clear();
    cockpit_.program.reset();
    const VirtualPlatform& machine = cockpit_.machine;
    if (machine.hid.OpenCount() != 0 || machine.deckhub.ReadingCount() != 0 ||
        machine.loop.TimerCount() != 0 || machine.ipc.OpenViews() != 0) {
        Fault("something is left open at the end");
    }
}

void SoakFlight::ForgetLogs() {
    cockpit_.machine.ipc.ForgetSentMessages();
    cockpit_.machine.keyboard.typed.clear();
    cockpit_.machine.tray.records.clear();
    cockpit_.ui.Boxes.clear();
}

void SoakFlight::Fault(const std::string& what) const {
    std::fflush(stdout);
    std::fprintf(stderr, "fault after %llu ticks: %s\n",
                 static_cast<unsigned long long>(tally_.ticks), what.c_str());
    std::abort();
}
