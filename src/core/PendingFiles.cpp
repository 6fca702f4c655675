#include "core/PendingFiles.h"

#include "core/ProcessSettings.h"
#include "platform/Patience.h"

namespace {

constexpr uint32_t kAgainMs = 500;
constexpr uint32_t kEndPatienceMs = 500;

}  // namespace

PendingFiles::PendingFiles(Clock& clock, ProcessPort& process, cSetupHolder& setup,
                           const WindowState& windows, AircraftBinding& binding)
    : clock_(clock),
      process_(process),
      setup_(setup),
      windows_(windows),
      binding_(binding),
      optionsWait_(!setup.IsRead()),
      lastTry_(clock.GetTickCount()) {}

void PendingFiles::Tick() {
    if (!optionsWait_ && !binding_.Waits()) return;
    const uint32_t now = clock_.GetTickCount();
    if (now - lastTry_ < kAgainMs) return;
    lastTry_ = now;
    // A window that is open shows what they were.
    if (optionsWait_ && !windows_.ModalWindowOpen && setup_.ReadWhatIsMissing()) {
        optionsWait_ = false;
        ApplyLate();
    }
    binding_.TryAgain();
}

// The automatic choice of processors was made at the start, of all that there are.
void PendingFiles::ApplyLate() {
    SetProcessPriority(process_, 0, 0, static_cast<uint32_t>(setup_.OrvoPriority));
    if (setup_.OrvoAffinity != kAutomaticAffinity) {
        SetProcessAffinity(process_, setup_.OrvoAffinity);
    }
}

// What the disk refuses to the last is lost; the files stay as they were.
void PendingFiles::SaveAll() {
    static_cast<void>(
        Patience(clock_, kEndPatienceMs).Try([this] { return binding_.SaveLists(); }));
    static_cast<void>(setup_.SaveSetup(kEndPatienceMs));
}
