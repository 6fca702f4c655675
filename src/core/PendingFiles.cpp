#include "core/PendingFiles.h"

#include "core/ProcessSettings.h"
#include "platform/Patience.h"

namespace {

constexpr uint32_t kAgainMs = 500;
constexpr uint32_t kPatienceMs = 500;

}  // namespace

PendingFiles::PendingFiles(Clock& clock, ProcessPort& process, cSetupHolder& setup,
                           AircraftBinding& binding)
    : clock_(clock),
      process_(process),
      setup_(setup),
      binding_(binding),
      optionsWait_(!setup.IsRead()),
      lastTry_(clock.GetTickCount()) {}

void PendingFiles::Tick() {
    if (!optionsWait_ && !binding_.Waits()) return;
    const uint32_t now = clock_.GetTickCount();
    if (now - lastTry_ < kAgainMs) return;
    lastTry_ = now;
    if (optionsWait_ && setup_.ReadWhatIsMissing()) {
        optionsWait_ = false;
        ApplyProcessSettings(process_, setup_);
    }
    binding_.TryAgain();
}

void PendingFiles::SaveAll() {
    Patience patience(clock_, kPatienceMs);
    patience.Try([this] { return binding_.SaveLists() && setup_.SaveSetup(); });
}
