#include <algorithm>
#include <gtest/gtest.h>

#include "bench/virtual/VirtualCockpit.h"

namespace {

struct StartTest : testing::Test, VirtualCockpit {
    std::vector<std::string> Tabs() {
        std::vector<std::string> captions;
        for (const auto& tab : Window().tabMain.Tabs()) captions.push_back(tab.caption);
        return captions;
    }
};

TEST_F(StartTest, SecondInstanceShowsOneBoxAndTouchesNothing) {
    machine.process.HoldInstance("Orvo");
    Plug(PanelKind::Multi);
    EXPECT_FALSE(Start());
    ASSERT_EQ(ui.Boxes.size(), 1U);
    EXPECT_EQ(ui.Boxes[0].text, "Orvo is already running...");
    EXPECT_TRUE(machine.tray.records.empty());
    EXPECT_TRUE(machine.deckhub.Starts().empty());
    EXPECT_EQ(program->Window(), nullptr);
}

TEST_F(StartTest, NoPanelsEndsWithOneBoxAndNoTick) {
    EXPECT_FALSE(Start());
    ASSERT_EQ(ui.Boxes.size(), 1U);
    EXPECT_EQ(ui.Boxes[0].text, "No Panel found, check your connections !");
    EXPECT_TRUE(Window().IsUnloaded());
    EXPECT_EQ(machine.loop.TimerCount(), 0U);
    EXPECT_EQ(machine.tray.records.back().first, 2U) << "the icon is gone";
}

TEST_F(StartTest, LoadWithoutPanelsSetsUpOneOfEach) {
    ASSERT_TRUE(Start("LoadWithoutPanels=1\r\n"));
    EXPECT_EQ(Tabs(), (std::vector<std::string>{"General", "Radio Panel 1", "Multi Panel 1",
                                                "Switch Panel 1", "BIP Panel 1"}));
    EXPECT_TRUE(ui.Boxes.empty());
    Connect();
    EXPECT_TRUE(program->Session.FSConnected);
    EXPECT_TRUE(machine.deckhub.Starts().empty());
    EXPECT_EQ(Multi().OnScreen.labUpperValue.Caption.Get(), "");
    Multi().SelectorChange.Raise(MultiPanelBit::kSelectorHDG, 0);
    Tick();
    EXPECT_EQ(Multi().OnScreen.labUpperValue.Caption.Get(), "000") << "the screen works";
    program.reset();
    EXPECT_EQ(machine.hid.OpenCount(), 0U);
}

TEST_F(StartTest, PanelsAreNumberedHavePagesAndFollowTheOptions) {
    Plug(PanelKind::BIP);
    Plug(PanelKind::Radio, 2);
    Plug(PanelKind::Radio, 1);
    machine.process.SetAffinity(255);
    ASSERT_TRUE(
        Start("Splash=0\r\nDeckhubPriority=128\r\nDeckhubAffinity=6\r\nOrvoPriority=64\r\n"));
    EXPECT_EQ(machine.process.Priority(VirtualProcess::kProcessId), 64U);
    EXPECT_EQ(machine.process.Affinity(), 252U);
    EXPECT_EQ(Tabs(), (std::vector<std::string>{"General", "Radio Panel 1", "Radio Panel 2",
                                                "BIP Panel 1"}));
    EXPECT_EQ(Window().tabMain.Tabs()[2].key, "RadioPanel2");
    EXPECT_EQ(machine.deckhub.Starts(), (std::vector<LinkStart>{{"RadioPanel1", 1500, 0, -1},
                                                                {"RadioPanel2", 1500, 0, -1},
                                                                {"BIPPanel1", 1500, 128, 6}}))
        << "the readers of Switch and BIP Panels take the options";
    EXPECT_EQ(machine.hid.OpenCount(), 3U);
    const auto page = [&](PanelKind kind, size_t n) {
        return Window().Panels[kind][n]->control->Visible.Get();
    };
    for (const int32_t tab : {4, 3, 1, 2}) {
        Window().tabMain.Select(tab);
        EXPECT_EQ(Window().picMain.Visible, tab == 1);
        EXPECT_EQ(page(PanelKind::Radio, 0), tab == 2);
        EXPECT_EQ(page(PanelKind::Radio, 1), tab == 3);
        EXPECT_EQ(page(PanelKind::BIP, 0), tab == 4);
    }
}

TEST_F(StartTest, SystemWithoutDeviceListsEndsWithThreeLines) {
    machine.deckhub.Refuse(DeckhubCall::CreateEnumerator);
    EXPECT_FALSE(Start());
    ASSERT_EQ(ui.Boxes.size(), 1U);
    EXPECT_EQ(ui.Boxes[0].text,
              "Error starting the application\n"
              "Probably you have not correctly registered the Deckhub.exe library.\n"
              "Try running: \"Deckhub.exe /regserver\" from a command prompt.");
}

TEST_F(StartTest, PanelThatCannotBeOpenedIsNoObstacle) {
    Plug(PanelKind::Multi);
    machine.hid.Refuse(HidCall::Open);
    ASSERT_TRUE(Start());
    Connect();
    EXPECT_TRUE(ui.Boxes.empty());
    EXPECT_TRUE(program->Session.FSConnected);
}

TEST_F(StartTest, WindowIsHiddenUntilTheIconIsDoubleClicked) {
    Plug(PanelKind::Multi);
    ASSERT_TRUE(Start("Splash=0\r\nMainFormTop=1500\r\nMainFormLeft=3000\r\n"));
    EXPECT_FALSE(Window().Visible);
    EXPECT_EQ(Window().Top, 1500);
    EXPECT_EQ(Window().Left, 3000);
    EXPECT_EQ(machine.tray.records.back().second.tip, "Waiting FS connection...");
    program->Windows.ModalWindowOpen = true;
    machine.tray.MouseActivity.Raise(515);
    EXPECT_FALSE(Window().Visible);
    program->Windows.ModalWindowOpen = false;
    machine.tray.MouseActivity.Raise(515);
    EXPECT_TRUE(Window().Visible);
}

TEST_F(StartTest, SplashRunsToItsEndBeforeTheNextPanelConnects) {
    VirtualDevice& first = Plug(PanelKind::Multi, 1);
    Plug(PanelKind::Multi, 2);
    size_t startsBefore = 0;
    machine.loop.After(990, [&] { startsBefore = machine.deckhub.Starts().size(); });
    ASSERT_TRUE(Start(""));
    EXPECT_EQ(first.featureReports.size(), 12U) << "ten pictures, an empty one, the dark one";
    EXPECT_EQ(startsBefore, 1U);
    EXPECT_EQ(machine.deckhub.Starts().size(), 2U);
}

TEST_F(StartTest, WindowClosedDuringTheSplashEndsTheStart) {
    VirtualDevice& first = Plug(PanelKind::Multi, 1);
    Plug(PanelKind::Multi, 2);
    machine.loop.After(300, [&] { Window().btnQuit.Press(); });
    EXPECT_FALSE(Start(""));
    EXPECT_TRUE(Window().IsUnloaded());
    EXPECT_EQ(machine.deckhub.Starts().size(), 1U);
    program.reset();
    EXPECT_EQ(first.featureReports.back()[1], 15);
    EXPECT_EQ(machine.loop.TimerCount(), 0U);
}

TEST_F(StartTest, SetupRequestReloadsTheBindingsAndReregisters) {
    Plug(PanelKind::Multi);
    ASSERT_TRUE(Start());
    bool modalDuring = false;
    ui.User = [&](Form& window) {
        modalDuring = program->Windows.ModalWindowOpen;
        Logic().MPActions->CourseSel = 2;
        window.Unload();
    };
    const uint32_t shape = program->Session.OffsetTable.Shape();
    Window().tabMain.Choose(2), Multi().cmdSetup.Press();
    EXPECT_TRUE(modalDuring);
    EXPECT_FALSE(program->Windows.ModalWindowOpen);
    EXPECT_EQ(program->Windows.SetupPanelIndex, 1);
    EXPECT_EQ(Logic().MPActions->CourseSel, 1);
    EXPECT_NE(program->Session.OffsetTable.Shape(), shape);
}

TEST_F(StartTest, SetupRequestOfASwitchPanelOnlyReloads) {
    for (const PanelKind kind : {PanelKind::Switch, PanelKind::BIP}) Plug(kind);
    Start();
    cOffsetTable& table = program->Session.OffsetTable;
    for (const char* name : {"FUELPUMPS", "MASTERAVIONICS"}) table.UnregisterOffset(name);
    SwitchLogic().SPActions->RetractableGear = false;
    Switch().SetupRequest.Raise();
    BIP().SetupRequest.Raise();
    EXPECT_TRUE(SwitchLogic().SPActions->RetractableGear);
    EXPECT_LT(table.OffsetRegistered("FUELPUMPS"), table.OffsetRegistered("MASTERAVIONICS"));
}

// Virus scanners and backups are busy when a user logs on.
TEST_F(StartTest, FilesThatAreHeldForAMomentAreWaitedFor) {
    Plug(PanelKind::Multi);
    PutProfile("Default", "[Common]\r\nSpecialMode=ngx\r\n");
    for (const char* name : {"Orvo", "Default"}) {
        machine.files.Hold("C:\\Orvo\\" + std::string(name) + ".ini", 10);
        ASSERT_TRUE(Start("Splash=0\r\nAutoQuit=1\r\n[Profiles]\r\nJet= \r\n"));
        EXPECT_TRUE(program->GeneralSetup.AutoQuit);
        EXPECT_EQ(program->Profiles.ProfileNames().size(), 2U);
        EXPECT_EQ(program->Session.SpecialMode, kNGXMode) << name;
        program.reset();
        machine.process.ReleaseInstances();
    }
}

TEST_F(StartTest, OptionsThatAreHeldAtTheStartComeLater) {
    const std::string options =
        "Splash=0\r\nAutoStart=1\r\nMainFormLeft=450\r\nOrvoPriority=64\r\nOrvoAffinity=2\r\n";
    Plug(PanelKind::Multi);
    machine.registry.WriteValue(0x80000001, "Software\\Microsoft\\Windows\\CurrentVersion\\Run",
                                "ORVO", 1, "C:\\Orvo\\Orvo.exe");
    machine.files.Hold("C:\\Orvo\\Orvo.ini");
    const uint64_t before = machine.clock.Elapsed();
    ASSERT_TRUE(Start(options));
    EXPECT_LE(machine.clock.Elapsed() - before, 500U + 1200U) << "half a second, and the splash";
    EXPECT_EQ(machine.process.Affinity(), 12U) << "the automatic choice, until they are read";
    machine.loop.Advance(3000);
    machine.files.Hold("");
    machine.loop.Advance(1000);
    EXPECT_TRUE(program->GeneralSetup.AutoStart);
    EXPECT_EQ(machine.process.Priority(VirtualProcess::kProcessId), 64U);
    EXPECT_EQ(machine.process.Affinity(), 2U);
    Window().Unload();
    EXPECT_EQ(program->GeneralSetup.MainFormLeft, 450) << "nobody moved the window";
}

TEST_F(StartTest, ListsThatAreHeldAtTheStartAreThereBeforeAnAircraftIs) {
    Plug(PanelKind::Multi);
    machine.files.Hold("C:\\Orvo\\Orvo.ini");
    ASSERT_TRUE(Start("Splash=0\r\n[Profiles]\r\nJet= \r\n"));
    EXPECT_EQ(Window().cmbProfiles.ListCount(), 1);
    machine.files.Hold("");
    machine.loop.Advance(1000);
    EXPECT_EQ(Window().cmbProfiles.ListCount(), 2);
}

// Held to the end, and let go while the program still waits.
TEST_F(StartTest, OptionsThatAreHeldAtTheEndAreSavedAllTheSame) {
    Plug(PanelKind::Multi);
    machine.files.Hold("C:\\Orvo\\Orvo.ini");
    ASSERT_TRUE(Start("Splash=0\r\nAutoQuit=1\r\n"));
    machine.files.Hold("");
    Window().Left = 4500;
    machine.files.Refuse(FileCall::Read, 5);
    machine.files.Refuse(FileCall::Replace, 5);
    Window().Unload();
    const std::string saved = *machine.files.Look("C:\\Orvo\\Orvo.ini");
    EXPECT_NE(saved.find("AutoQuit=1\r\n"), std::string::npos) << saved;
    EXPECT_NE(saved.find("MainFormLeft=4500\r\n"), std::string::npos) << saved;
}

TEST_F(StartTest, FolderThatHasNoNameForUsIsToldOnce) {
    Plug(PanelKind::Multi);
    machine.process.SetProgramFolder("C:\\?????");
    ASSERT_TRUE(Start());
    ASSERT_EQ(ui.Boxes.size(), 1U);
    EXPECT_EQ(ui.Boxes[0].icon, MsgBoxIcon::Exclamation);
}

}  // namespace
