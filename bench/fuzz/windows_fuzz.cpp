// A user who does anything at all in every window, while panels, simulator and other programs do
// anything as well: nothing hangs, the panels show digits, the files hold no less than before and
// at the end what the program has.
#include "bench/fuzz/Require.h"
#include "bench/virtual/FilesWatch.h"
#include "bench/virtual/PanelWatch.h"
#include "bench/virtual/RandomPilot.h"
#include "bench/virtual/RandomProfile.h"
#include "toolkit/UiBackend.h"

namespace {

constexpr int kThings = 20;

const std::string& Profile() {
    static const std::string kText = [] {
        SeededChoices choices(2);
        return RandomProfile(choices, 0);
    }();
    return kText;
}

void Open(VirtualCockpit& cockpit, uint32_t window) {
    frmMain& main = cockpit.Window();
    if (window == 0) return main.btnSetup.Press();
    if (window == 1) return main.btnProfiles.Press();
    cockpit.Unit(kPanelIdentities[window - 2].kind, 1).control->SetupRequest.Raise();
}

}  // namespace

// The window that is opened first, then all choices.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    ByteChoices choices({data, size});
    VirtualCockpit cockpit;
    RandomPilot pilot(cockpit, choices);
    std::vector<RandomPilot::Panel*> panels;
    for (const PanelIdentity& identity : kPanelIdentities) {
        panels.push_back(&pilot.Plug(identity.kind));
    }
    cockpit.PutProfile("Default", Profile());
    cockpit.PutProfile("Jet", "[Common]\r\nSpecialMode=NGX\r\n[Mine]\r\nA=1\r\n");
    Require(
        cockpit.Start("Splash=0\r\nManualProfile=1\r\n[Profiles]\r\nJet= \r\nOld= \r\n"
                      "[Aircrafts]\r\nBaron 58=Default\r\nB737=Jet\r\n"));
    cockpit.Connect();
    FilesWatch files(cockpit.machine.files);
    pilot.User.MaySay = [&files](const MsgBoxRequest& request, MsgBoxResult said) {
        files.TakeAnswer(request, said);
        return true;
    };
    pilot.AfterTick = [&] {
        RequireEmpty(files.Lost());
        for (RandomPilot::Panel* panel : panels) {
            RequireEmpty(WrongReports(panel->kind, panel->device));
        }
    };
    pilot.User.Meanwhile = [&] { choices.OneIn(4) ? pilot.Something() : pilot.Rest(); };
    Open(cockpit, choices.Below(6));
    for (int i = 0; i < kThings && !choices.Ended() && !cockpit.Window().IsUnloaded(); ++i) {
        pilot.User.Act(cockpit.Window());
        pilot.Something();
    }
    // What a file that is held to the last can't take is lost.
    const bool ended = cockpit.Window().IsUnloaded();
    pilot.SetRight();
    for (int i = 0; i < 300 && cockpit.Window().Binding.Waits(); ++i) pilot.Rest();
    cockpit.Window().Unload();
    if (!ended) RequireEmpty(FilesWatch::Unsaved(cockpit));
    Require(cockpit.machine.process.OpenCount() == 0);
    return 0;
}
