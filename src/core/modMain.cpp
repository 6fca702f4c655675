#include "core/modMain.h"

#include "config/OldConfiguration.h"
#include "core/PanelDiscovery.h"
#include "core/ProcessSettings.h"
#include "toolkit/UiBackend.h"

namespace {

constexpr uint32_t kStartPatienceMs = 500;

const MsgBoxRequest kNoFolder = {
    "Orvo can't reach its own folder, whose name has letters that this system's programs can't "
    "use.\n"
    "Options and profiles are neither read nor saved.\n"
    "Move Orvo to a folder with a plain name.",
    "Orvo", MsgBoxIcon::Exclamation, MsgBoxButtons::Ok};

}  // namespace

modMain::modMain(const Platform& platform, UiBackend& ui)
    : GeneralSetup(platform.ini, platform.files, platform.clock, platform.registry,
                   platform.process.ProgramFolder()),
      Profiles(platform.ini, platform.files, platform.clock, platform.process.ProgramFolder()),
      Session(platform.ipc, platform.clock),
      Output(Session, platform.keyboard, platform.loop),
      platform_(platform),
      ui_(ui),
      patience_(platform.clock, kStartPatienceMs) {}

bool modMain::Main() {
    monitorRects_ = platform_.screen.EnumDisplayMonitors();
    if (AlreadyRunning()) return false;
    ReadOptions();
    if (!ConvertOldConfiguration(platform_.ini, platform_.files, ui_,
                                 platform_.process.ProgramFolder(), patience_)) {
        return false;
    }
    ReadProfiles();

    const MainServices services = {platform_,    ui_,      Session, Output,
                                   GeneralSetup, Profiles, Windows, monitorRects_};
    window_ = std::make_unique<frmMain>(services);
    window_->LoadForm();
    platform_.loop.RunPending();

    switch (const Discovery discovery = DiscoverPanels(*window_, services)) {
        case Discovery::EndProcess:
            return false;
        case Discovery::Stop:
            window_->Unload();
            platform_.loop.RunPending();
            return false;
        case Discovery::Found:
        case Discovery::NoneGoOn:
            window_->ArmTimer();
            if (window_->IsUnloaded()) return false;
            if (discovery == Discovery::NoneGoOn) SetUpUnconnectedPanels(*window_, services);
            return true;
    }
    return false;
}

bool modMain::AlreadyRunning() {
    if (platform_.process.ClaimSingleInstance("Orvo")) return false;
    ui_.MsgBox({"Orvo is already running...", "Orvo", MsgBoxIcon::Critical, MsgBoxButtons::Ok});
    return true;
}

void modMain::ReadOptions() {
    if (platform_.process.ProgramFolder().find('?') != std::string::npos) ui_.MsgBox(kNoFolder);
    // Those that can't be read yet have their defaults, and come later.
    static_cast<void>(patience_.Try([this] { return GeneralSetup.LoadSetup(); }));
    ApplyProcessSettings(platform_.process, GeneralSetup);
}

// The window's loading takes the first profile into force.
void modMain::ReadProfiles() {
    Profiles.LoadProfileList();
    Profiles.LoadAircraftList();
    static_cast<void>(patience_.Try(
        [this] { return Profiles.ReadWhatIsMissing() && Profiles.ProfileReadable(); }));
}
