#include <functional>
#include <gtest/gtest.h>
#include <optional>

#include "bench/virtual/FilesWatch.h"
#include "bench/virtual/RandomProfile.h"
#include "bench/virtual/RandomUser.h"
#include "bench/virtual/VirtualCockpit.h"

// Each call of each port is refused in turn, once and for ever, over a start, a flight, every
// window and the end: the program goes on or ends in order, and no file holds less than before.

namespace {

struct Refusal {
    std::string name;
    std::function<void(VirtualPlatform& machine, int times)> refuse;
};

template <class Call, class Refuse>
void AddAll(std::vector<Refusal>& all, const char* port, Call last, Refuse refuse) {
    for (int number = 0; number <= static_cast<int>(last); ++number) {
        all.push_back(
            {std::string(port) + std::to_string(number), [=](VirtualPlatform& machine, int times) {
                 refuse(machine, static_cast<Call>(number), times);
             }});
    }
}

std::vector<Refusal> AllRefusals() {
    std::vector<Refusal> all;
    AddAll(all, "Ipc", IpcCall::SendMessageTimeoutA,
           [](auto& machine, auto call, int times) { machine.ipc.Refuse(call, times); });
    AddAll(all, "Hid", HidCall::GetFeature,
           [](auto& machine, auto call, int times) { machine.hid.Refuse(call, times); });
    AddAll(all, "Deckhub", DeckhubCall::StartReading,
           [](auto& machine, auto call, int times) { machine.deckhub.Refuse(call, times); });
    AddAll(all, "File", FileCall::Write,
           [](auto& machine, auto call, int times) { machine.files.Refuse(call, times); });
    AddAll(all, "Registry", RegistryCall::DeleteValue,
           [](auto& machine, auto call, int times) { machine.registry.Refuse(call, times); });
    AddAll(all, "Process", ProcessCall::SetProcessAffinityMask,
           [](auto& machine, auto call, int times) { machine.process.Refuse(call, times); });
    all.push_back(
        {"Tray", [](VirtualPlatform& machine, int times) { machine.tray.Refuse(times); }});
    all.push_back({"OpenProcess", [](VirtualPlatform& machine, int) {
                       for (const uint32_t access : {0x200U, 0x400U, 0x600U, 0x1000U, 0x1200U}) {
                           machine.process.RefuseAccess(access);
                       }
                   }});
    all.push_back(
        {"Instance", [](VirtualPlatform& machine, int) { machine.process.HoldInstance("Orvo"); }});
    all.push_back(
        {"Screen", [](VirtualPlatform& machine, int) { machine.screen.monitors.clear(); }});
    all.push_back({"HeldFile", [](VirtualPlatform& machine, int times) {
                       machine.files.Hold("C:\\Orvo\\Orvo.ini", times);
                   }});
    return all;
}

class FaultSweepTest : public testing::TestWithParam<std::tuple<Refusal, int>> {
  protected:
    FaultSweepTest() {
        for (const PanelIdentity& identity : kPanelIdentities) {
            panels.push_back(&cockpit.Plug(identity.kind));
        }
        cockpit.PutProfile("Default", RandomProfile(choices, kStandardMode));
        cockpit.PutProfile("Jet", "[Common]\r\nSpecialMode=NGX\r\n[Mine]\r\nA=1\r\n");
        cockpit.PutOptions(
            "Splash=0\r\nRunAtStartup=1\r\n[Profiles]\r\nJet= \r\n[Aircrafts]\r\n"
            "Baron 58=Default\r\nB737=Jet\r\n");
        files.emplace(cockpit.machine.files);
        user.MaySay = [this](const MsgBoxRequest& request, MsgBoxResult said) {
            files->TakeAnswer(request, said);
            return !request.text.starts_with("           Are you sure");
        };
        user.Meanwhile = [this] { Fly(3); };
    }

    bool Ended() { return !cockpit.program->Window() || cockpit.Window().IsUnloaded(); }

    // So many ticks, in which every panel reports something.
    void Fly(int ticks) {
        for (int i = 0; i < ticks; ++i) {
            for (VirtualDevice* panel : panels) {
                panel->SendReport({0, choices.Byte(), choices.Byte(), choices.Byte()});
            }
            cockpit.Tick();
            EXPECT_EQ(files->Lost(), "");
        }
    }

    void UseEveryWindow() {
        const auto open = [this](const std::function<void()>& act) {
            if (!Ended()) act();
            if (!Ended()) Fly(5);
        };
        open([this] { cockpit.Window().btnSetup.Press(); });
        open([this] { cockpit.Window().btnProfiles.Press(); });
        for (const PanelIdentity& identity : kPanelIdentities) {
            if (cockpit.Window().Panels[identity.kind].empty()) continue;
            open([&] { cockpit.Unit(identity.kind, 1).control->SetupRequest.Raise(); });
        }
    }

    // Everything once, in two sessions.
    void FlyAll() {
        cockpit.Connect();
        Fly(100);
        cockpit.SetTitle("B737");
        Fly(50);
        cockpit.SetTitle("A new one");
        Fly(50);
        UseEveryWindow();
        if (Ended()) return;
        cockpit.LoseSimulator();
        cockpit.machine.loop.Advance(3000);
        cockpit.Connect();
        Fly(100);
    }

    SeededChoices choices{1};
    VirtualCockpit cockpit;
    std::vector<VirtualDevice*> panels;
    RandomUser user{cockpit.ui, choices};
    std::optional<FilesWatch> files;
};

TEST_P(FaultSweepTest, TheProgramGoesOnOrEndsInOrderAndLosesNothing) {
    const auto& [refusal, times] = GetParam();
    refusal.refuse(cockpit.machine, times);
    if (cockpit.StartWithFiles()) {
        FlyAll();
        if (!Ended()) cockpit.Window().Unload();
        EXPECT_TRUE(cockpit.machine.loop.QuitWasCalled());
    }
    EXPECT_EQ(files->Lost(), "");
    cockpit.program.reset();
    EXPECT_EQ(cockpit.machine.loop.TimerCount(), 0u);
    EXPECT_EQ(cockpit.machine.hid.OpenCount(), 0u);
    EXPECT_EQ(cockpit.machine.deckhub.ReadingCount(), 0);
}

INSTANTIATE_TEST_SUITE_P(Ports, FaultSweepTest,
                         testing::Combine(testing::ValuesIn(AllRefusals()),
                                          testing::Values(1, Faults<int>::kAlways)),
                         [](const auto& each) {
                             return std::get<0>(each.param).name +
                                    (std::get<1>(each.param) == 1 ? "Once" : "ForEver");
                         });

}  // namespace
