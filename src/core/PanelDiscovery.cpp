#include "core/PanelDiscovery.h"

#include <string>

#include "toolkit/UiBackend.h"

namespace {

void Report(UiBackend& ui, const std::string& text, const std::string& title) {
    ui.MsgBox({text, title, MsgBoxIcon::Critical, MsgBoxButtons::Ok});
}

// False if a panel can't be connected.
bool ConnectPanel(frmMain& window, const MainServices& services, const PanelIdentity& identity,
                  int32_t tab, const std::string& path) {
    cPanelDevice& control = *window.AddPanel(identity.kind, tab).control;
    if (!control.Connect(path)) {
        Report(services.ui, std::string("Error connecting a detected ") + identity.name,
               "  modMain.Main");
        return false;
    }
    if (services.generalSetup.Splash) control.Splash();
    // Else the next report of its tiles would light what the brightness has left in the buffer.
    if (identity.kind == PanelKind::BIP) control.TurnOff();
    return true;
}

void StartLogics(frmMain& window, const MainServices& services, PanelKind kind) {
    for (const auto& unit : window.Panels[kind]) {
        StartLogic(*unit, services.ForLogics(), services.windows);
    }
}

}  // namespace

Discovery DiscoverPanels(frmMain& window, const MainServices& services) {
    const auto enumerator = services.platform.deckhub.CreateEnumerator();
    if (!enumerator) {
        Report(services.ui,
               "Error starting the application\n"
               "Probably you have not correctly registered the Deckhub.exe library.\n"
               "Try running: \"Deckhub.exe /regserver\" from a command prompt.",
               "  modMain.Main");
        return Discovery::EndProcess;
    }
    bool found = false;
    int32_t tab = 1;
    for (const PanelIdentity& identity : kPanelIdentities) {
        const int16_t count = enumerator->CountPanels(kPanelVendorId, identity.productId);
        for (int16_t n = 1; n <= count; ++n) {
            found = true;
            if (!ConnectPanel(window, services, identity, ++tab, enumerator->GetPanelPath(n))) {
                return Discovery::EndProcess;
            }
            // A panel's show lets messages run.
            if (window.IsUnloaded()) return Discovery::EndProcess;
        }
        StartLogics(window, services, identity.kind);
    }
    if (window.IsUnloaded()) return Discovery::EndProcess;
    if (found) return Discovery::Found;
    if (services.generalSetup.LoadWithoutPanels) return Discovery::NoneGoOn;
    Report(services.ui, "No Panel found, check your connections !", "  Orvo");
    return Discovery::Stop;
}

void SetUpUnconnectedPanels(frmMain& window, const MainServices& services) {
    int32_t tab = 1;
    for (const PanelIdentity& identity : kPanelIdentities) {
        window.AddPanel(identity.kind, ++tab);
        StartLogics(window, services, identity.kind);
    }
}
