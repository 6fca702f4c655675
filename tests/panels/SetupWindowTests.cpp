#include <map>
#include <sstream>

#include "tests/panels/SetupWindowFlight.h"

namespace {

struct SetupWindowTest : SetupWindowFlight {
    int32_t bound = 0;                          // virtual buttons that have an action already
    std::map<std::string, std::string> values;  // what the profile's keys are to be

    void ExpectEndsUnderWindow(void (Form::*end)()) {
        const std::string profile = "[BIPPanel1]\r\nT0=ENG_FIRE,Green\r\n";
        Begin(profile);
        Connect();
        InBIP([&](frmBIPPanelSetup& window) {
            window.cmdClearAll.Press();
            (Window().*end)();
            EXPECT_TRUE(window.IsUnloaded());
        });
        EXPECT_FALSE(program->Windows.BIPSetupOpen);
        EXPECT_EQ(Profile(), profile);
    }

    void ExpectKeys(const std::string& head) {
        std::map<std::string, std::string> found;
        std::istringstream lines(Profile());
        std::string line;
        std::getline(lines, line);
        EXPECT_EQ(line, head + '\r');
        while (std::getline(lines, line)) {
            const size_t sign = line.find('=');
            found[line.substr(0, sign)] = line.substr(sign + 1, line.size() - sign - 2);
        }
        EXPECT_EQ(found, values);
    }
};

TEST_F(SetupWindowTest, MultiPanelSavesWhatWasChangedOnEveryTabAndWorksByItAtOnce) {
    Begin(
        "[MultiPanel1]\r\nButtonActionREV=None\r\nRotaryAccelerationCRS=120\r\n[Mine]\r\nx=1\r\n");
    Connect();
    const uint32_t shape = program->Session.OffsetTable.Shape();
    InMulti([&](frmMultiPanelSetup& window) {
        EXPECT_EQ(window.labProfile.Caption.Get(), "Currently in use Profile:  Default");
        EXPECT_FALSE(window.esButtons.TakesActs()) << "its page isn't the one that is shown";
        BindToButton(window.esSelector, 65, 3);
        window.tabMain.Choose(2);
        window.tabRotary.Choose(4);
        window.sliderRotAcceleration.Drag(40);
        BindToButton(window.esRotDown, 66, 32);
        window.tabRotary.Choose(5);
        EXPECT_EQ(window.sliderRotAcceleration.Value(), 100);
        window.optCourse[2].Press();
        EXPECT_EQ(window.MPActions.CourseSel, 2);
        EXPECT_EQ(Logic().MPActions->CourseSel, 1);
        window.tabMain.Choose(3);
        window.tabButtons.Choose(8);
        EXPECT_EQ(window.esButtons.FSEvent(), 0);
        BindToBuiltIn(window.esButtons);
        window.tabButtons.Choose(1);
        BindToButton(window.esLongButtons, 64, 1);
        window.tabButtons.Choose(2);
        EXPECT_EQ(window.esLongButtons.FSEvent(), 1);
        window.tabMain.Choose(4);
        BindToNothing(window.esATOff);
        window.tabMain.Choose(5);
        window.chkRevFlaps.Press();
        window.tabMain.Choose(6);
        window.sliderTrimAcceleration.Drag(0), window.sliderTrimSensitivity.Drag(1);
        window.tabMain.Choose(7);
        EXPECT_TRUE(window.frameMaddog.Visible && !window.frameNGX.Visible);
        window.optSpecialMode[1].Press();
        EXPECT_TRUE(!window.frameMaddog.Visible && window.frameNGX.Visible);
        EXPECT_EQ(window.frameNGX.cmbREVlong.Text(), "F/D 2");
        window.frameNGX.cmbAPshort.Choose(22);
        Multi().SelectorChange.Raise(0x010000, 0);  // ALT
        Tick();
        const std::string shown = Shown();
        machine.server.Set<int32_t>(0x07D4, 1000 << 16);
        Tick();
        EXPECT_NE(Shown(), shown) << "the panel lives meanwhile";
        window.cmdOk.Press();
        EXPECT_TRUE(window.IsUnloaded());
    });
    EXPECT_EQ(Profile(),
              "[MultiPanel1]\r\nRotaryAccelerationCRS=120\r\nSelectorActionALT=VButton,65,3\r\n"
              "RotDownActionHDG=VButton,66,32\r\nLongButtonActionAP=VButton,64,1\r\n"
              "AutoThrottleActionOFF=None\r\nRotaryAccelerationHDG=40\r\nNGXAPShort=22\r\n"
              "CourseSel=2\r\nTrimSensitivity=1\r\nReverseFlaps=1\r\n[Mine]\r\nx=1\r\n");
    EXPECT_EQ(Logic().MPActions->CourseSel, 2);
    EXPECT_NE(program->Session.OffsetTable.Shape(), shape);
}

TEST_F(SetupWindowTest, RadioPanelsPositionsHaveTheirEventsAndTheLastThreePagesOfTheirOwn) {
    Begin("[RadioPanel1]\r\nButtonActionNAV1=None\r\nADFInnStep=0.5\r\n");
    Connect();
    InRadio([&](frmRadioPanelSetup& window) {
        BindToButton(*window.esClockWise[0], 64, 7);
        window.tabSelector.Choose(3);
        EXPECT_EQ(window.esSwitchButton.FSEvent(), 0);
        EXPECT_EQ(window.esClockWise[0]->FSEvent(), 1);
        window.tabControls.Choose(2);
        BindToButton(*window.esCounterClock[1], 64, 8);
        window.sliderRotAcceleration.Drag(7);
        window.tabSelector.Choose(1);
        EXPECT_EQ(window.esClockWise[0]->VButton(), 7);
        EXPECT_EQ(window.sliderRotAcceleration.Value(), 1);
        for (int32_t tab = 1; tab <= 7; ++tab) {
            window.tabSelector.Choose(tab);
            for (int32_t page = 5; page <= 7; ++page) {
                EXPECT_EQ(window.picAddon[page - 5].Visible, page == tab);
            }
        }
        window.optAltimeter[2].Press();
        window.tabSelector.Choose(6), window.optDME[1].Press();
        window.tabSelector.Choose(5), window.optADFMode[3].Press();
        EXPECT_TRUE(window.RPActions.AltimeterUnit == 2 && window.RPActions.DMEMode == 1 &&
                    window.RPActions.ADFMode == 3);
        window.cmdOk.Press();
    });
    EXPECT_EQ(
        Profile(),
        "[RadioPanel1]\r\nButtonActionNAV1=None\r\nADFInnStep=0.5\r\n"
        "InnRotUpCOM1=VButton,64,7\r\nOutRotDownNAV1=VButton,64,8\r\nRotAccelerationNAV1=7\r\n"
        "AltimeterUnit=2\r\nDMEMode=1\r\nADFMode=3\r\n");
    EXPECT_EQ(RadioLogic().RPActions->ADFMode, 3);
}

TEST_F(SetupWindowTest, AdfStepsTakeWhatAProfileCanHoldAndLetTheUserFinishWriting) {
    Begin("[RadioPanel1]\r\nADFInnStep=0.5\r\n");
    InRadio([](frmRadioPanelSetup& window) {
        TextBox& box = window.txtADFInnStep;
        EXPECT_EQ(box.Text(), "0.5");
        window.tabSelector.Choose(5);
        for (const auto& [typed, shown, left, step] : {std::tuple("2,5", "2,5", "2,5", 2.5F),
                                                       {"abc", "2.5", "2.5", 2.5F},
                                                       {"", "2.5", "2.5", 2.5F},
                                                       {"1000.1", "2.5", "2.5", 2.5F},
                                                       {"0", "0", "2.5", 2.5F},
                                                       {"0.0", "0.0", "2.5", 2.5F},
                                                       {"0.001", "2.5", "2.5", 2.5F},
                                                       {"-1", "2.5", "2.5", 2.5F},
                                                       {"nan", "2.5", "2.5", 2.5F},
                                                       {"0.01", "0.01", "0.01", 0.01F},
                                                       {"1000", "1000", "1000", 1000.0F}}) {
            SCOPED_TRACE(typed);
            box.Type(typed);
            EXPECT_EQ(box.Text(), shown);
            box.Leave();
            EXPECT_EQ(box.Text(), left);
            EXPECT_EQ(window.RPActions.ADFInnerKnobStep, step);
        }
        EXPECT_EQ(window.txtADFOutStep.Text(), "1");
    });
}

TEST_F(SetupWindowTest, SwitchPanelSavesTheGeneralOptionsAndWithoutARadioPanelNoEngines) {
    Begin("[SwitchPanel1]\r\nSwitchBATOn=None\r\nSingleFuelPump=1\r\n", false);
    InSwitch([&](frmSwitchPanelSetup& window) {
        window.tabMenu.Choose(3);
        for (CheckBox* box : {&window.chkStarterSelector, &window.chkFuelPump, &window.chkAltSwitch,
                              &window.chkCowlFlaps, &window.chkDeIce}) {
            EXPECT_FALSE(box->Enabled);
            box->Press();
        }
        window.tabMenu.Choose(2), window.chkRetGear.Press();
        EXPECT_FALSE(window.SPActions.RetractableGear);
        window.tabMenu.Choose(1), window.tabMain.Choose(6);
        BindToBuiltIn(*window.esSwitch[1]);
        window.tabMain.Choose(20);
        BindToButton(*window.esSwitch[0], 72, 1);
        window.Left = 1500;
        program->GeneralSetup.AutoQuit = true;
        window.cmdOk.Press();
    });
    EXPECT_EQ(Profile(),
              "[SwitchPanel1]\r\nSingleFuelPump=1\r\nSwitchGEARDOWNOff=VButton,72,1\r\n"
              "RetractableGear=0\r\n");
    const std::string options = FileOf(kOptionsFile);
    EXPECT_NE(options.find("AutoQuit=1"), std::string::npos);
    EXPECT_EQ(options.find("SetupFormLeft=1500"), std::string::npos) << "it isn't stored yet";
    EXPECT_EQ(program->GeneralSetup.SetupFormLeft, 1500);
    InSwitch([&](frmSwitchPanelSetup& window) {
        EXPECT_EQ(window.Left, 1500);
        program->GeneralSetup.AutoQuit = false;
        window.cmdCancel.Press();
    });
    EXPECT_TRUE(program->GeneralSetup.AutoQuit);
}

TEST_F(SetupWindowTest, EnginesOfTheSwitchPanelAreTickedAtOnce) {
    Begin("[SwitchPanel1]\r\nSingleDeIce=1\r\n");
    InSwitch([](frmSwitchPanelSetup& window) {
        const cSwitchPanelActionsHolder& actions = window.SPActions;
        window.tabMenu.Choose(3);
        for (const auto& [box, option] :
             {std::pair(&window.chkStarterSelector, &actions.SingleStarterSelector),
              {&window.chkFuelPump, &actions.SingleFuelPump},
              {&window.chkAltSwitch, &actions.SingleAltSwitch},
              {&window.chkCowlFlaps, &actions.SingleCowlFlaps},
              {&window.chkDeIce, &actions.SingleDeIce}}) {
            const bool before = *option;
            EXPECT_EQ(box->Value(), before);
            box->Press();
            EXPECT_NE(*option, before);
        }
    });
}

// Every control gets a value of its own.
TEST_F(SetupWindowTest, EachControlOfTheMultiPanelsWindowHasItsOwnKeys) {
    Begin();
    InMulti([&](frmMultiPanelSetup& window) {
        for (const auto& [page, selector, key] :
             {std::tuple(4, &window.esATOff, "AutoThrottleActionOFF"),
              {4, &window.esATArm, "AutoThrottleActionARM"},
              {5, &window.esFlapsDown, "FlapsActionDOWN"},
              {5, &window.esFlapsUp, "FlapsActionUP"},
              {6, &window.esTrimDown, "TrimActionDOWN"},
              {6, &window.esTrimUp, "TrimActionUP"},
              {1, &window.esSelector, "SelectorActionALT"},
              {2, &window.esRotUp, "RotUpActionALT"},
              {2, &window.esRotDown, "RotDownActionALT"},
              {3, &window.esButtons, "ButtonActionAP"},
              {3, &window.esLongButtons, "LongButtonActionAP"}}) {
            window.tabMain.Choose(page);
            BindToButton(*selector, 64, ++bound);
            values[key] = "VButton,64," + std::to_string(bound);
        }
        window.tabMain.Choose(6), window.chkRevTrim.Press();
        window.sliderTrimAcceleration.Drag(99), window.sliderTrimSensitivity.Drag(-9);
        values["ReverseTrim"] = "1", values["TrimAcceleration"] = "99";
        values["TrimSensitivity"] = "1";
        window.tabMain.Choose(7), window.optSpecialMode[1].Press();
        NGXFunctionsFrame& lists = window.frameNGX;
        int32_t row = 21;
        for (const auto& [list, key] : {std::pair(&lists.cmbAPshort, "NGXAPShort"),
                                        {&lists.cmbAPlong, "NGXAPLong"},
                                        {&lists.cmbHDGshort, "NGXHDGShort"},
                                        {&lists.cmbHDGlong, "NGXHDGLong"},
                                        {&lists.cmbNAVshort, "NGXNAVShort"},
                                        {&lists.cmbNAVlong, "NGXNAVLong"},
                                        {&lists.cmbIASshort, "NGXIASShort"},
                                        {&lists.cmbIASlong, "NGXIASLong"},
                                        {&lists.cmbALTshort, "NGXALTShort"},
                                        {&lists.cmbALTlong, "NGXALTLong"},
                                        {&lists.cmbVSshort, "NGXVSShort"},
                                        {&lists.cmbVSlong, "NGXVSLong"},
                                        {&lists.cmbAPRshort, "NGXAPRShort"},
                                        {&lists.cmbAPRlong, "NGXAPRLong"},
                                        {&lists.cmbREVshort, "NGXREVShort"},
                                        {&lists.cmbREVlong, "NGXREVLong"}}) {
            list->Choose(--row);
            values[key] = std::to_string(row);
        }
        window.cmdOk.Press();
    });
    ExpectKeys("[MultiPanel1]");
}

TEST_F(SetupWindowTest, EachControlOfTheRadioPanelsWindowHasItsOwnKeys) {
    Begin();
    InRadio([&](frmRadioPanelSetup& window) {
        window.tabSelector.Choose(5);
        for (const auto& [page, selector, key] :
             {std::tuple(1, window.esClockWise[0], "InnRotUpADF"),
              {1, window.esCounterClock[0], "InnRotDownADF"},
              {2, window.esClockWise[1], "OutRotUpADF"},
              {2, window.esCounterClock[1], "OutRotDownADF"},
              {3, &window.esSwitchButton, "ButtonActionADF"},
              {3, &window.esSwitchLongButton, "LongButtonActionADF"},
              {4, &window.esSelector, "SelectorActionADF"}}) {
            window.tabControls.Choose(page);
            BindToButton(*selector, 64, ++bound);
            values[key] = "VButton,64," + std::to_string(bound);
        }
        window.txtADFInnStep.Type("3"), window.txtADFOutStep.Type("7");
        values["ADFInnStep"] = "3", values["ADFOutStep"] = "7";
        window.cmdOk.Press();
    });
    ExpectKeys("[RadioPanel1]");
}

TEST_F(SetupWindowTest, WindowIsThatOfItsPanelAndAllMultiPanelsStartAnew) {
    for (const PanelKind kind : {PanelKind::Multi, PanelKind::BIP}) Plug(kind, 2);
    Begin("[BIPPanel1]\r\nT0=ENG_FIRE,Green\r\n");
    Connect();
    In<frmMultiPanelSetup>(
        PanelKind::Multi,
        [&](frmMultiPanelSetup& window) {
            PutProfile("Default", Profile() + "[MultiPanel1]\r\nCourseSel=2\r\n");
            window.tabMain.Choose(5), window.chkRevFlaps.Press(), window.cmdOk.Press();
        },
        2);
    EXPECT_NE(Profile().find("[MultiPanel2]\r\nReverseFlaps=1"), std::string::npos) << Profile();
    EXPECT_EQ(Logic(1).MPActions->CourseSel, 2);
    machine.files.Hold(kProfileFile);
    Logic(1).StartUp();
    EXPECT_EQ(Logic(1).MPActions->CourseSel, 2) << "while the file can't be read";
    machine.files.Hold("");
    BIP(1).TurnPanel(LampColor::kRed), BIP(2).TurnPanel(LampColor::kRed);
    In<frmBIPPanelSetup>(
        PanelKind::BIP,
        [](frmBIPPanelSetup& window) { EXPECT_EQ(window.BPActions.GetTileFunction(0), 0); }, 2);
    EXPECT_EQ(BIP(1).OnScreen.shpTile[0].FillColor, LampColor::kRed);
    EXPECT_EQ(BIP(2).OnScreen.shpTile[0].FillColor, BIPPanelPicture::kTileOff);
}

TEST_F(SetupWindowTest, ProgramMayEndUnderAnOpenWindow) { ExpectEndsUnderWindow(&Form::Unload); }
TEST_F(SetupWindowTest, UserMayLogOffUnderAnOpenWindow) {
    ExpectEndsUnderWindow(&Form::EndSession);
}

TEST_F(SetupWindowTest, EditorOfTilesTakesOnlyWhatATileCanHave) {
    Begin();
    cBIPPanelActionHolder tiles(program->Profiles);
    TileEditor editor(tiles);
    std::string changed;
    editor.TileChanged.Connect([&](int16_t tile) { changed += std::to_string(tile) + " "; });
    editor.SelectTile(5);
    for (const int16_t none : {int16_t{-1}, int16_t{24}}) editor.SelectTile(none);
    EXPECT_EQ(editor.Selected(), 5);
    for (const int32_t none : {0, 42, 46, -1, 70}) editor.ChooseFunction(none);
    editor.ChooseColor(0), editor.ChooseThreshold(9);
    EXPECT_EQ(changed, "") << "it has no function yet";
    editor.ChooseFunction(67), editor.ChooseColor(0), editor.ChooseThreshold(9);
    EXPECT_TRUE(tiles.GetColor(5) == LampColor::kOff && tiles.GetThreshold(5) == 0);
    editor.ChooseFunction(9), editor.ChooseColor(3), editor.ChooseThreshold(101);
    EXPECT_TRUE(tiles.GetColor(5) == LampColor::kYellow && tiles.GetThreshold(5) == 100);
    editor.ChooseFunction(9);
    EXPECT_EQ(tiles.GetThreshold(5), 100) << "it has it already";
    EXPECT_EQ(changed, "5 5 ");
}

TEST_F(SetupWindowTest, TilesAreSetUpByClicksWhileThePanelStandsStill) {
    Begin("[BIPPanel1]\r\nT0=ENG_FIRE,Green\r\nT9=ROTOR_LOW_RPM,Yellow,35\r\n");
    Connect();
    InBIP([&](frmBIPPanelSetup& window) {
        EXPECT_TRUE(program->Windows.BIPSetupOpen);
        EXPECT_TRUE(window.optFunction[1].Value() && window.optTileColor[1].Value());
        EXPECT_TRUE(window.frameColor.Enabled && !window.frameThreshold.Enabled);
        EXPECT_EQ(window.OnScreen.shpTile[0].BorderWidth, 60);
        const Label& caption = window.OnScreen.lblTileR2[9];
        EXPECT_TRUE(caption.Caption.Get() == "LOW" && caption.Top == 720 + 510);
        window.picPanel.Press(caption.Left + 15, caption.Top + 15);
        EXPECT_EQ(window.OnScreen.shpTile[0].BorderWidth, 15);
        EXPECT_TRUE(window.optFunction[49].Value() && !window.optFunction[1].Value());
        EXPECT_EQ(window.tabCat.SelectedItem(), 7) << "the page of its function";
        EXPECT_EQ(window.sliderThreshold.Value(), 35);
        window.sliderThreshold.Drag(50), window.optTileColor[0].Press();
        EXPECT_EQ(window.OnScreen.shpTile[9].FillColor, LampColor::kRed);
        window.optFunction[46].Press();
        EXPECT_FALSE(window.optFunction[46].Value()) << "it has no content";

        Shape& last = window.OnScreen.shpTile[23];
        window.picPanel.Press(last.Left + 30, last.Top + 30);
        EXPECT_EQ(window.tabCat.SelectedItem(), 7) << "a tile without function stays there";
        EXPECT_FALSE(window.frameColor.Enabled || window.frameThreshold.Enabled);
        window.tabCat.Choose(1), window.optFunction[9].Press();
        EXPECT_EQ(window.OnScreen.lblTileR3[23].Caption.Get(), "PRESSURE");
        window.optTileColor[0].Press(), window.sliderThreshold.Drag(99);
        window.optFunction[1].Press(), window.optFunction[9].Press();
        EXPECT_EQ(window.sliderThreshold.Value(), 20) << "its standard again";
        EXPECT_EQ(BIPLogic().BPActions->GetTileFunction(23), 0);
        window.cmdOk.Press();
    });
    EXPECT_EQ(Profile(),
              "[BIPPanel1]\r\nT0=ENG_FIRE,Green\r\nT9=ROTOR_LOW_RPM,Red,50\r\n"
              "T23=OIL_PRESSURE,Yellow,20\r\n");
    EXPECT_FALSE(program->Windows.BIPSetupOpen);
    EXPECT_EQ(BIPLogic().BPActions->GetTileFunction(23), 9);
    EXPECT_EQ(BIP().OnScreen.lblTileR3[23].Caption.Get(), "PRESSURE");
    InBIP([](frmBIPPanelSetup& window) {
        window.cmbClear.Press();
        EXPECT_TRUE(window.OnScreen.lblTileR1[0].Caption.Get().empty());
        EXPECT_FALSE(window.optFunction[1].Value() || window.frameColor.Enabled);
        window.optFunction[1].Press();
        EXPECT_EQ(window.lblDescription.Caption.Get(), TileFunctions[1].Description);
        window.cmdClearAll.Press();
        EXPECT_TRUE(window.lblDescription.Caption.Get().empty());
        window.cmdOk.Press();
    });
    EXPECT_EQ(Profile().find('T'), std::string::npos) << Profile();
}

TEST_F(SetupWindowTest, PanelBeingSetUpIsDarkAfterItsTilesWindowUntilTheNextTick) {
    Begin("[BIPPanel1]\r\nT0=GPS,Green\r\nT1=NAV\r\n");
    Connect();
    machine.server.Set<int32_t>(0x132C, 0);
    Tick();
    const BIPPanelPicture& page = BIP().OnScreen;
    ASSERT_EQ(page.shpTile[1].FillColor, LampColor::kGreen);
    InBIP([&](frmBIPPanelSetup& window) {
        window.cmdClearAll.Press();
        machine.server.Set<int32_t>(0x132C, 1);
        Tick();
        EXPECT_EQ(page.shpTile[1].FillColor, LampColor::kGreen) << "it stands still";
        window.cmdCancel.Press();
    });
    EXPECT_EQ(page.shpTile[1].FillColor, BIPPanelPicture::kTileOff);
    Tick();
    EXPECT_EQ(page.shpTile[0].FillColor, LampColor::kGreen);
}

TEST_F(SetupWindowTest, CancelAndTheCloseBoxLeaveTheFileAsItIs) {
    const std::string profile = "; mine\r\n[BIPPanel1]\r\nT07 = GPS\r\n[MultiPanel1]\r\nx= \r\n";
    Begin(profile);
    for (const bool cancels : {true, false}) {
        const auto leave = [cancels](CommandButton& cmdCancel) {
            if (cancels) cmdCancel.Press();
        };
        InMulti([&](frmMultiPanelSetup& window) {
            BindToNothing(window.esSelector), window.tabMain.Choose(2), window.optCourse[2].Press();
            window.tabRotary.Choose(3), leave(window.cmdCancel);
        });
        InRadio([&](frmRadioPanelSetup& window) {
            BindToNothing(*window.esClockWise[0]), window.tabSelector.Choose(7);
            window.optAltimeter[1].Press(), leave(window.cmdCancel);
        });
        InSwitch([&](frmSwitchPanelSetup& window) {
            BindToNothing(*window.esSwitch[0]), window.tabMain.Choose(7);
            window.tabMenu.Choose(3), window.chkDeIce.Press(), leave(window.cmdCancel);
        });
        InBIP(
            [&](frmBIPPanelSetup& window) { window.cmdClearAll.Press(), leave(window.cmdCancel); });
        EXPECT_EQ(Profile(), profile);
    }
    EXPECT_EQ(Logic().MPActions->CourseSel, 1);
}

TEST_F(SetupWindowTest, WhatWasTypedOutlivesARefusedSave) {
    Begin("[RadioPanel1]\r\nADFOutStep=2\r\n");
    InRadio([&](frmRadioPanelSetup& window) {
        window.tabSelector.Choose(5), window.txtADFOutStep.Type("4");
        BindToNothing(*window.esClockWise[0]);
        machine.files.Hold(kProfileFile);
        window.cmdOk.Press();
        ASSERT_EQ(ui.Boxes.size(), 1u);
        EXPECT_NE(ui.Boxes[0].text.find(kProfileFile), std::string::npos);
        EXPECT_FALSE(window.IsUnloaded());
        EXPECT_EQ(window.txtADFOutStep.Text(), "4");
        machine.files.Hold("");
        window.cmdOk.Press();
    });
    EXPECT_EQ(Profile(), "[RadioPanel1]\r\nADFOutStep=4\r\nInnRotUpADF=None\r\n");
    machine.files.Hold(kProfileFile, 3);
    InRadio([](frmRadioPanelSetup& window) { EXPECT_EQ(window.txtADFOutStep.Text(), "4"); });
    machine.files.Hold(kProfileFile);
    Connect();
    BIP().TurnPanel(LampColor::kRed);
    for (const PanelKind kind : {PanelKind::Radio, PanelKind::BIP}) {
        Unit(kind, 1).control->SetupRequest.Raise();
    }
    EXPECT_EQ(ui.Boxes.size(), 3u) << "a profile that can't be read isn't set up";
    EXPECT_EQ(BIP().OnScreen.shpTile[0].FillColor, LampColor::kRed) << "and its panel stays lit";
}

TEST_F(SetupWindowTest, OkSavesToTheProfileThatTheWindowWasOpenedFor) {
    Begin("[MultiPanel1]\r\nCourseSel=2\r\n");
    PutProfile("Jet", "[MultiPanel1]\r\nTrimSensitivity=2\r\n");
    Connect();
    InMulti([&](frmMultiPanelSetup& window) {
        FlyAircraft("Learjet");
        ASSERT_EQ(program->Profiles.CurrentProfile, "Jet");
        EXPECT_EQ(window.labProfile.Caption.Get(), "Currently in use Profile:  Default");
        window.tabMain.Choose(5), window.chkRevFlaps.Press();
        LoseSimulator();
        window.cmdOk.Press();
    });
    EXPECT_EQ(Profile(), "[MultiPanel1]\r\nCourseSel=2\r\nReverseFlaps=1\r\n");
    EXPECT_EQ(FileOf("C:\\Orvo\\Jet.ini"), "[MultiPanel1]\r\nTrimSensitivity=2\r\n");
    const cMultiPanelActionsHolder& flown = *Logic().MPActions;
    EXPECT_TRUE(flown.TrimSensitivity == 2 && flown.CourseSel == 1 && flown.ReverseFlaps == 0);
}

}  // namespace
