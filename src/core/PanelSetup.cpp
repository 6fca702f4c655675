#include "core/PanelSetup.h"

#include "panels/bip/frmBIPPanelSetup.h"
#include "panels/multi/frmMultiPanelSetup.h"
#include "panels/radio/frmRadioPanelSetup.h"
#include "panels/switch/frmSwitchPanelSetup.h"

namespace {

void OpenMultiSetup(const PanelLists& panels, const SetupServices& services) {
    frmMultiPanelSetup window(services);
    window.Saved.Connect([&] {
        if (!services.profiles.ProfileInUse()) return;
        PanelLists::ForEachLogicOf(panels[PanelKind::Multi],
                                   [](cPanelLogic& logic) { logic.StartUp(); });
    });
    window.Open();
}

}  // namespace

void OpenPanelSetup(PanelUnit& unit, const PanelLists& panels, const SetupServices& services) {
    switch (unit.kind) {
        case PanelKind::Radio:
            frmRadioPanelSetup(services).Open();
            break;
        case PanelKind::Multi:
            OpenMultiSetup(panels, services);
            break;
        case PanelKind::Switch:
            frmSwitchPanelSetup(services, !panels[PanelKind::Radio].empty()).Open();
            break;
        case PanelKind::BIP:
            frmBIPPanelSetup(services, static_cast<ctlBIPPanel&>(*unit.control)).Open();
            break;
    }
}
