#pragma once

#include <memory>
#include <string>

#include "core/modMain.h"
#include "panels/bip/cBIPPanelLogic.h"
#include "panels/bip/ctlBIPPanel.h"
#include "panels/multi/cMultiPanelLogic.h"
#include "panels/multi/ctlMultiPanel.h"
#include "panels/radio/cRadioPanelLogic.h"
#include "panels/radio/ctlRadioPanel.h"
#include "panels/switch/cSwitchPanelLogic.h"
#include "panels/switch/ctlSwitchPanel.h"
#include "platform/virtual/VirtualPlatform.h"
#include "toolkit/HeadlessUi.h"

// The whole program on a virtual machine: panels are plugged and options put before Start.
struct VirtualCockpit {
    VirtualPlatform machine;
    HeadlessUi ui;
    std::unique_ptr<modMain> program;

    VirtualCockpit() {
        machine.server.SetVersion(0x39990005, 8);
        machine.server.Set<int32_t>(0x281C, 1);
        machine.server.Set<int32_t>(0x2E80, 1);
        SetTitle("Baron 58");
    }

    VirtualDevice& Plug(PanelKind kind, int number = 1) {
        const PanelIdentity& identity = kPanelIdentities[static_cast<size_t>(kind)];
        return machine.bus.Add(kPanelVendorId, identity.productId,
                               std::string(identity.key) + std::to_string(number));
    }

    void PutOptions(const std::string& keys) {
        machine.files.Put("C:\\Orvo\\Orvo.ini", "[GeneralSetup]\r\n" + keys);
    }

    void PutProfile(const std::string& name, const std::string& text) {
        machine.files.Put("C:\\Orvo\\" + name + ".ini", text);
    }

    // Splash is off, for the tests that don't look at it.
    bool Start(const std::string& options = "Splash=0\r\n") {
        PutOptions(options);
        return StartWithFiles();
    }
    // With the files as they are.
    bool StartWithFiles() {
        program = std::make_unique<modMain>(machine.Ports(), ui);
        return program->Main();
    }

    void SetTitle(const std::string& title) {
        for (uint32_t i = 0; i < 256; ++i) {
            machine.server.Set<char>(0x3D00 + i, i < title.size() ? title[i] : '\0');
        }
    }

    // The simulator comes up and is found; one tick has read it.
    void Connect() {
        machine.ipc.AddWindow("UIPCMAIN");
        machine.loop.Advance(1000);
        Tick();
    }
    void LoseSimulator() {
        machine.ipc.RemoveWindows();
        machine.ipc.AnswerWith(0);
        Tick();
        machine.ipc.AnswerWith(0, 0);
    }
    void Tick() { machine.loop.Advance(10); }

    frmMain& Window() { return *program->Window(); }
    PanelUnit& Unit(PanelKind kind, int number) {
        return *Window().Panels[kind][static_cast<size_t>(number - 1)];
    }
    PanelUnit& Unit(int number) { return Unit(PanelKind::Multi, number); }
    ctlMultiPanel& Multi(int number = 1) {
        return static_cast<ctlMultiPanel&>(*Unit(number).control);
    }
    cMultiPanelLogic& Logic(int number = 1) {
        return static_cast<cMultiPanelLogic&>(*Unit(number).logic);
    }
    ctlRadioPanel& Radio(int number = 1) {
        return static_cast<ctlRadioPanel&>(*Unit(PanelKind::Radio, number).control);
    }
    cRadioPanelLogic& RadioLogic(int number = 1) {
        return static_cast<cRadioPanelLogic&>(*Unit(PanelKind::Radio, number).logic);
    }
    ctlSwitchPanel& Switch(int number = 1) {
        return static_cast<ctlSwitchPanel&>(*Unit(PanelKind::Switch, number).control);
    }
    cSwitchPanelLogic& SwitchLogic(int number = 1) {
        return static_cast<cSwitchPanelLogic&>(*Unit(PanelKind::Switch, number).logic);
    }
    ctlBIPPanel& BIP(int number = 1) {
        return static_cast<ctlBIPPanel&>(*Unit(PanelKind::BIP, number).control);
    }
    cBIPPanelLogic& BIPLogic(int number = 1) {
        return static_cast<cBIPPanelLogic&>(*Unit(PanelKind::BIP, number).logic);
    }
    // The rows of the picture: "upper|lower".
    std::string Shown(int number = 1) {
        const MultiPanelPicture& picture = Multi(number).OnScreen;
        return picture.labUpperValue.Caption.Get() + "|" + picture.labLowerValue.Caption.Get();
    }
};
