#pragma once

#include <gtest/gtest.h>

#include "bench/virtual/VirtualCockpit.h"
#include "panels/bip/frmBIPPanelSetup.h"
#include "panels/multi/frmMultiPanelSetup.h"
#include "panels/radio/frmRadioPanelSetup.h"
#include "panels/switch/frmSwitchPanelSetup.h"

inline constexpr const char* kOptionsFile = "C:\\Orvo\\Orvo.ini";
inline constexpr const char* kProfileFile = "C:\\Orvo\\Default.ini";

// The program with a panel of each kind, and what a user does in their setup windows.
struct SetupWindowFlight : testing::Test, VirtualCockpit {
    std::vector<VirtualDevice*> devices;

    void Begin(const std::string& profile = "", bool withRadio = true) {
        for (const PanelIdentity& identity : kPanelIdentities) {
            if (!withRadio && identity.kind == PanelKind::Radio) continue;
            devices.push_back(&Plug(identity.kind));
        }
        if (!profile.empty()) PutProfile("Default", profile);
        ASSERT_TRUE(Start("Splash=0\r\n[Profiles]\r\nJet= \r\n[Aircrafts]\r\nLearjet=Jet\r\n"));
    }

    // Opens panel 1's window, or another's. What stays open behind `user` is closed by its close
    // box.
    template <class Window>
    void In(PanelKind kind, const std::function<void(Window&)>& user, int panel = 1) {
        int opened = 0;
        ui.User = [&](Form& form) {
            if (auto* window = dynamic_cast<Window*>(&form)) ++opened, user(*window);
            form.Unload();
        };
        Unit(kind, panel).control->SetupRequest.Raise();
        ui.User = nullptr;
        EXPECT_EQ(opened, 1);
    }
    void InMulti(const std::function<void(frmMultiPanelSetup&)>& user) {
        In(PanelKind::Multi, user);
    }
    void InRadio(const std::function<void(frmRadioPanelSetup&)>& user) {
        In(PanelKind::Radio, user);
    }
    void InSwitch(const std::function<void(frmSwitchPanelSetup&)>& user) {
        In(PanelKind::Switch, user);
    }
    void InBIP(const std::function<void(frmBIPPanelSetup&)>& user) { In(PanelKind::BIP, user); }

    std::string FileOf(const char* path) { return machine.files.Look(path).value_or(""); }
    std::string Profile() { return FileOf(kProfileFile); }

    static void BindToButton(ctlEventSelector& selector, int32_t joystick, int32_t button) {
        selector.optEvent[2].Press();
        selector.cmbVJoystick.Choose(joystick - 64);
        selector.cmbVButton.Choose(button - 1);
    }
    static void BindToNothing(ctlEventSelector& selector) { selector.optEvent[0].Press(); }
    static void BindToBuiltIn(ctlEventSelector& selector) { selector.optEvent[1].Press(); }

    void FlyAircraft(const std::string& title) {
        SetTitle(title);
        Tick(), Tick();
    }
};
