#include "core/modMain.h"

#include "config/OldConfiguration.h"
#include "core/PanelDiscovery.h"
#include "core/ProcessSettings.h"
#include "toolkit/UiBackend.h"

modMain::modMain(const Platform& platform, UiBackend& ui)
    : GeneralSetup(platform.ini, platform.files, platform.registry,
                   platform.process.ProgramFolder()),
      Profiles(platform.ini, platform.files, platform.process.ProgramFolder()),
      Session(platform.ipc, platform.clock),
      Output(Session, platform.keyboard, platform.loop),
      platform_(platform),
      ui_(ui) {}

bool modMain::Main() {
    monitorRects_ = platform_.screen.EnumDisplayMonitors();
    if (AlreadyRunning()) return false;
    GeneralSetup.LoadSetup();
    SetProcessPriority(platform_.process, 0, 0, static_cast<uint32_t>(GeneralSetup.OrvoPriority));
    SetProcessAffinity(platform_.process, GeneralSetup.OrvoAffinity);
    if (!ConvertOldConfiguration(platform_.ini, platform_.files, ui_,
                                 platform_.process.ProgramFolder())) {
        return false;
    }
    Profiles.LoadProfileList();
    Profiles.LoadAircraftList();

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
