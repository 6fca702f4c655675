#include <gtest/gtest.h>

#include "bench/virtual/VirtualCockpit.h"
#include "ui/frmGeneralSetup.h"
#include "ui/frmGetKeys.h"

namespace {

constexpr uint32_t kCurrentUser = 0x80000001;
constexpr const char* kRunKey = "Software\\Microsoft\\Windows\\CurrentVersion\\Run";
constexpr const char* kOptionsFile = "C:\\Orvo\\Orvo.ini";

// The program with its windows, and what a user does in them.
struct WindowTest : testing::Test, VirtualCockpit {
    void Begin(const std::string& options = "") {
        ASSERT_TRUE(Start("Splash=0\r\nLoadWithoutPanels=1\r\n" + options));
    }
    cSetupHolder& Options() { return program->GeneralSetup; }
    std::string Saved() { return machine.files.Look(kOptionsFile).value_or("no file"); }

    void InGeneralOptions(const std::function<void(frmGeneralSetup&)>& user) {
        int opened = 0;
        ui.User = [&](Form& form) {
            ++opened;
            user(dynamic_cast<frmGeneralSetup&>(form));
            form.Unload();
        };
        Window().btnSetup.Press();
        ui.User = nullptr;
        EXPECT_EQ(opened, 1);
    }
    bool StartsAtLogon() { return machine.registry.Look(kCurrentUser, kRunKey, "ORVO") != nullptr; }
};

}  // namespace

TEST_F(WindowTest, EachOptionIsShownAndChangesAtOnce) {
    Begin("AutoQuit=1\r\nDeckhubAffinity=6\r\nOrvoPriority=128\r\nDeckhubPriority=77\r\n");
    InGeneralOptions([this](frmGeneralSetup& window) {
        EXPECT_FALSE(window.chkAutoStart.Value());
        EXPECT_TRUE(window.chkAutoQuit.Value());
        EXPECT_TRUE(window.optManprofile[1].Value());
        const Slider& slider = window.sliderClickThreshold;
        EXPECT_EQ(slider.Value(), 500);
        EXPECT_TRUE(slider.Min() == 100 && slider.Max() == 2000 && slider.TickFrequency == 100);
        EXPECT_TRUE(slider.SmallChange == 100 && slider.LargeChange == 200);
        EXPECT_TRUE(window.DefaultButton == &window.cmdOk &&
                    window.CancelButton == &window.cmdCancel);
        EXPECT_EQ(window.cmbOrvoPriority.Text(), "High");
        EXPECT_EQ(window.cmbDeckhubPriority.ListIndex(), -1) << "no class of the list";
        EXPECT_TRUE(window.optOrvoAffinity[0].Value() && window.optDeckhubAffinity[1].Value());
        EXPECT_FALSE(window.txtOrvoAffinity.Enabled);
        EXPECT_EQ(window.txtDeckhubAffinity.Text(), "6");

        window.chkAutoStart.Press(), window.chkAutoQuit.Press(), window.optManprofile[0].Press();
        window.sliderClickThreshold.Drag(800);
        window.tabMain.Choose(2);
        window.cmbOrvoPriority.Choose(0), window.cmbDeckhubPriority.Choose(5);
        EXPECT_TRUE(Options().AutoStart && !Options().AutoQuit && Options().ManualProfile);
        EXPECT_EQ(Options().ClickThreshold, 800);
        EXPECT_EQ(Options().OrvoPriority, 0x40);
        EXPECT_EQ(Options().DeckhubPriority, 0x100);
    });
}

TEST_F(WindowTest, AffinityTakesWholeNumbersOnly) {
    Begin("OrvoAffinity=3\r\n");
    InGeneralOptions([this](frmGeneralSetup& window) {
        TextBox& mask = window.txtOrvoAffinity;
        mask.Type("9");
        EXPECT_EQ(Options().OrvoAffinity, 3) << "on a page that isn't seen";
        window.tabMain.Choose(2);
        for (const auto& [typed, shown, kept] :
             {std::tuple("12", "12", 12), {"abc", "", 12}, {"7", "7", 7}, {"4294967296", "", 7}}) {
            mask.Type(typed);
            EXPECT_EQ(mask.Text(), shown);
            EXPECT_EQ(Options().OrvoAffinity, kept);
        }
        window.optOrvoAffinity[0].Press();
        EXPECT_EQ(Options().OrvoAffinity, -1);
        EXPECT_TRUE(mask.Text().empty() && !mask.Enabled);
        window.optOrvoAffinity[1].Press();
        EXPECT_TRUE(mask.Enabled);
        EXPECT_EQ(Options().OrvoAffinity, -1) << "until something is typed";
    });
    InGeneralOptions(
        [](frmGeneralSetup& window) { EXPECT_TRUE(window.optOrvoAffinity[0].Value()); });
}

TEST_F(WindowTest, ThresholdBeyondTheSliderStaysUntilItIsMoved) {
    Begin("ClickThreshold=5000\r\n");
    InGeneralOptions([this](frmGeneralSetup& window) {
        EXPECT_EQ(window.sliderClickThreshold.Value(), 2000);
        window.chkAutoQuit.Press();
        window.cmdOk.Press();
    });
    EXPECT_NE(Saved().find("ClickThreshold=5000"), std::string::npos) << Saved();
    InGeneralOptions([](frmGeneralSetup& window) { window.sliderClickThreshold.Drag(1900); });
    EXPECT_EQ(Options().ClickThreshold, 1900);
}

TEST_F(WindowTest, OkSavesOptionsPlaceAndLogonEntryAndCancelTakesAllBack) {
    Begin();
    const std::string before = Saved();
    InGeneralOptions([](frmGeneralSetup& window) {
        window.chkAutoStart.Press();
        window.cmdCancel.Press();
    });
    EXPECT_EQ(Saved(), before);
    EXPECT_FALSE(Options().AutoStart || StartsAtLogon());
    InGeneralOptions([](frmGeneralSetup& window) {
        window.chkAutoStart.Press();
        window.Left = 1500;
        window.Top = 3000;
        window.cmdOk.Press();
    });
    EXPECT_EQ(machine.registry.Look(kCurrentUser, kRunKey, "ORVO")->data, "C:\\Orvo\\Orvo.exe");
    for (const char* line : {"AutoStart=1", "SetupFormTop=3000", "SetupFormLeft=1500"}) {
        EXPECT_NE(Saved().find(line), std::string::npos) << Saved();
    }
    InGeneralOptions([this](frmGeneralSetup& window) {
        EXPECT_EQ(window.Left, 1500);
        EXPECT_EQ(window.Top, 3000);
        window.chkAutoStart.Press();
        window.Left = 300;
    });
    EXPECT_FALSE(Options().AutoStart) << "by its close box it keeps the changes";
    EXPECT_EQ(Options().GeneralSetupFormLeft, 300);
    EXPECT_TRUE(StartsAtLogon()) << "but doesn't save";
    Window().Unload();
    EXPECT_FALSE(StartsAtLogon());
    EXPECT_NE(Saved().find("SetupFormLeft=300"), std::string::npos) << Saved();
}

TEST_F(WindowTest, RefusedSaveIsToldAndTheWindowStays) {
    Begin();
    InGeneralOptions([this](frmGeneralSetup& window) {
        machine.files.Hold(kOptionsFile);
        window.chkAutoQuit.Press(), window.chkAutoStart.Press();
        window.cmdOk.Press();
        ASSERT_EQ(ui.Boxes.size(), 1u);
        EXPECT_NE(ui.Boxes[0].text.find(kOptionsFile), std::string::npos) << ui.Boxes[0].text;
        EXPECT_FALSE(window.IsUnloaded());
        EXPECT_TRUE(window.chkAutoQuit.Value());
        EXPECT_FALSE(StartsAtLogon()) << "as Cancel would leave it";
        machine.files.Hold("");
        window.cmdOk.Press();
        EXPECT_TRUE(window.IsUnloaded());
    });
    EXPECT_EQ(ui.Boxes.size(), 1u);
    EXPECT_NE(Saved().find("AutoQuit=1"), std::string::npos);
    EXPECT_TRUE(StartsAtLogon());
}

TEST_F(WindowTest, OneWindowAtATimeAndThePanelsGoOn) {
    Plug(PanelKind::Multi);
    Begin();
    Connect();
    InGeneralOptions([this](frmGeneralSetup& window) {
        EXPECT_TRUE(program->Windows.ModalWindowOpen);
        Multi().SetupRequest.Raise();
        Window().btnQuit.Press();
        machine.tray.MouseActivity.Raise(515);
        EXPECT_FALSE(Window().Visible);
        const size_t batches = machine.ipc.CallCount(IpcCall::SendMessageTimeoutA);
        machine.loop.Advance(100);
        EXPECT_GE(machine.ipc.CallCount(IpcCall::SendMessageTimeoutA) - batches, 9u);
        EXPECT_FALSE(window.IsUnloaded());
    });
    EXPECT_TRUE(ui.Boxes.empty()) << "the button lies under the window";
    int setups = 0;
    ui.User = [&](Form& window) {
        ++setups;
        Multi().SetupRequest.Raise();
        window.Unload();
    };
    Multi().SetupRequest.Raise();
    EXPECT_EQ(setups, 1);
    Window().Unload();
    Multi().SetupRequest.Raise();
    EXPECT_EQ(setups, 1) << "the program is closing";
}

TEST_F(WindowTest, OptionsThatComeLateWaitForTheWindowToClose) {
    machine.files.Hold(kOptionsFile);
    Plug(PanelKind::Multi);
    ASSERT_TRUE(Start("Splash=0\r\nAutoQuit=1\r\n"));
    InGeneralOptions([this](frmGeneralSetup& window) {
        machine.files.Hold("");
        machine.loop.Advance(3000);
        EXPECT_FALSE(Options().AutoQuit || window.chkAutoQuit.Value());
    });
    machine.loop.Advance(2000);
    EXPECT_TRUE(Options().AutoQuit);
}

TEST_F(WindowTest, RowsOfTabsCountWhereTheWindowIsPlaced) {
    for (int n = 1; n <= 3; ++n) Plug(PanelKind::Radio, n);
    Begin("MainFormTop=11000\r\nMainFormLeft=150\r\n");
    EXPECT_EQ(Window().Top, 11000);
    Window().tabMain.SetMoreRows(900);
    Window().ArmTimer();
    EXPECT_LT(Window().Top, 11000) << "the bar would lie below the work area";
}

TEST_F(WindowTest, EndOfTheProgramClosesWhatIsOpen) {
    Begin();
    Connect();
    InGeneralOptions([this](frmGeneralSetup& window) {
        window.chkAutoQuit.Press();
        LoseSimulator();
        EXPECT_TRUE(window.IsUnloaded() && Window().IsUnloaded());
    });
    EXPECT_NE(Saved().find("AutoQuit=1"), std::string::npos) << "changes of the window included";
}

TEST_F(WindowTest, WithoutAProfileNothingIsReadOrWritten) {
    Plug(PanelKind::Multi);
    PutProfile("Default", "[MultiPanel1]\r\nButtonActionAP=VButton,64,3\r\n");
    Begin("ManualProfile=1\r\n");
    Window().Binding.AskForProfile = [](const std::string&) { return std::string(); };
    Connect();
    ASSERT_EQ(program->Profiles.CurrentProfile, "");
    const ActionRecord bound = Logic().MPActions->GetButtonsActions(1);
    EXPECT_EQ(bound.FSEvent, ActionKind::VButton);
    const auto paths = machine.files.Paths();
    Multi().SetupRequest.Raise();
    machine.loop.Advance(2000);
    EXPECT_EQ(Logic().MPActions->GetButtonsActions(1), bound);
    Logic().MPActions->LoadSetup();
    EXPECT_EQ(Logic().MPActions->GetButtonsActions(1), bound);
    EXPECT_FALSE(Logic().MPActions->SaveSetup());
    ASSERT_EQ(ui.Boxes.size(), 1u) << "instead of the window";
    EXPECT_NE(ui.Boxes[0].text.find("No profile"), std::string::npos);
    EXPECT_EQ(machine.files.Paths(), paths);
}

TEST_F(WindowTest, PagesFollowTheTabsAndTheMarkHidesTheWindow) {
    Plug(PanelKind::Radio, 1), Plug(PanelKind::Radio, 2), Plug(PanelKind::Switch);
    Begin();
    frmMain& main = Window();
    machine.tray.MouseActivity.Raise(515);
    EXPECT_TRUE(main.Visible && main.picMain.Visible);
    main.tabMain.Choose(3);
    EXPECT_TRUE(Radio(2).Visible && !main.picMain.Visible && !Radio(1).Visible);
    main.tabMain.Choose(4);
    EXPECT_TRUE(Switch(1).Visible && !Radio(2).Visible);
    main.picMinimize.Press(100, 100);
    EXPECT_TRUE(main.Visible) << "on a page that isn't seen";
    main.tabMain.Choose(1);
    main.picMinimize.Press(100, 100);
    EXPECT_FALSE(main.Visible);
    EXPECT_FALSE(main.IsUnloaded());
}
