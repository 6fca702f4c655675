// The shipping Orvo.exe with the simulator stand-in and virtual panels, each in a process of its
// own. Every wait has a deadline, so every test has one.

#include <windows.h>

// Counts on windows.h.
#include <commctrl.h>

#include <algorithm>
#include <string>
#include <vector>

#include "bench/console/Command.h"
#include "bench/driver/TypingField.h"
#include "bench/flight/ScriptedFlight.h"
#include "tests/e2e/EndToEnd.h"

using namespace bench;

namespace {

BOOL CALLBACK PressOne(HWND button, LPARAM) {
    PressButton(button);
    return TRUE;
}

// The entry that starts the program at logon. Whatever a test makes of it is gone after that.
struct LogonEntry {
    LogonEntry() { RegDeleteKeyValueA(HKEY_CURRENT_USER, kKey, kName); }
    ~LogonEntry() { RegDeleteKeyValueA(HKEY_CURRENT_USER, kKey, kName); }
    std::string Data() const {
        char data[MAX_PATH] = "";
        DWORD size = sizeof data;
        RegGetValueA(HKEY_CURRENT_USER, kKey, kName, RRF_RT_REG_SZ, nullptr, data, &size);
        return data;
    }
    static constexpr char kKey[] = R"(Software\Microsoft\Windows\CurrentVersion\Run)";
    static constexpr char kName[] = "ORVO";
};

TEST_F(EndToEnd, FliesTheScriptedFlight) {
    EXPECT_TRUE(FlyScriptedFlight(*cockpit_, FlightLog(false)));
}

TEST_F(EndToEnd, ProfilesFollowTheTitleAndTheUsersChoice) {
    const std::string lists = "[Profiles]\r\nSecond=\r\n[Aircrafts]\r\nB 737=Second\r\n";
    cockpit_->WriteIni(lists);
    cockpit_->WriteFile("Second.ini", "[MultiPanel1]\r\nButtonActionHDG=VButton,72,32\r\n");
    StartConnected();
    EXPECT_TRUE(ChangeAircraft("[A]=1; 100%", "Default"));
    EXPECT_TRUE(ChangeAircraft("B 737", "Second"));
    EXPECT_TRUE(Fly({{"multi1", "press HDG", "", "0810:00000000 3360:00000080 3360:00000000"}}));
    const HWND combo = FindChild(cockpit_->MainWindow(), "ComboBox", std::nullopt);
    EXPECT_EQ(ComboTexts(combo), (std::vector<std::string>{"Second", "Default"}));
    EXPECT_TRUE(ChooseInCombo(combo, 1));
    EXPECT_TRUE(Fly({{"profile", "", "Default"}, {"multi1", "press HDG", "", "07C8:01000000"}}));
    EXPECT_EQ(cockpit_->ReadFile("Orvo.ini"),
              lists + "Bench Trainer=Default\r\n%5BA]%3D1; 100%25=Default\r\n");
    ExpectQuits();
}

TEST_F(EndToEnd, KeystrokesGoToTheWindowInFocus) {
    cockpit_->WriteFile("Default.ini",
                        "[MultiPanel1]\r\nButtonActionNAV=VKey,65,0,97\r\n"
                        "ButtonActionAPR=VKey,65,1,65\r\nRotUpActionHDG=VKey,67,0,99\r\n");
    StartConnected();
    const TypingField field;
    ASSERT_TRUE(field.TakeFocus());
    EXPECT_TRUE(Fly({{"multi1", "selector HDG; press NAV; press APR; knob +2 60"}}));
    EXPECT_TRUE(Until(kSoonMs, [&] { return field.Text() == "aAcc"; })) << field.Text();
    ExpectQuits();
}

TEST_F(EndToEnd, FeatureReportsArriveByteByByte) {
    cockpit_->WriteIni("[GeneralSetup]\r\nSplash=0\r\n");
    cockpit_->WriteFile("Default.ini",
                        "[BIPPanel1]\r\nT0=COMBINED_GEAR\r\nT9=LEFT_FUEL_LOW,Red,51\r\n");
    StartConnected({"radio1", "switch1", "bip1"});
    ASSERT_TRUE(Fly({{"radio1", "", R"(upper "118.10" "119.52" lower "118.10" "119.52")"},
                     {"switch1", "", "gear nose green left green right green"},
                     {"bip1", "", "tiles 0 green 9 red"}}));
    EXPECT_EQ(cockpit_->Panels("reports radio1"), "000101D801000101D905020101D801000101D905020000");
    EXPECT_EQ(cockpit_->Panels("reports switch1"), "0007");
    const std::string tiles = cockpit_->Panels("reports bip1");
    EXPECT_TRUE(tiles.starts_with("B200 B2000000000000 B200 B2000000000000 B205 B20A B20F "))
        << tiles;
    EXPECT_TRUE(tiles.ends_with(" B264 B8000000000000 B8010000000000 B8010000000200")) << tiles;
    ExpectQuits();
}

TEST_F(EndToEnd, OldFileBecomesTheDefaultProfile) {
    constexpr char kBox[] = "  ORVO  - Configuration file conversion request";
    const std::string old = "[MultiPanel1]\r\nButtonActionHDG=VButton,64,1\r\n";
    cockpit_->WriteIni(old);
    cockpit_->StartOrvo();
    ASSERT_NE(AnswerBox(*cockpit_, kBox, IDCANCEL), "no box");
    EXPECT_EQ(cockpit_->Orvo().WaitForEnd(kSoonMs), 0u);
    EXPECT_EQ(cockpit_->ReadFile("Orvo.ini"), old);

    cockpit_->StartSimulator();
    cockpit_->StartPanels();
    PlugIn("multi1");
    cockpit_->StartOrvo();
    EXPECT_EQ(AnswerBox(*cockpit_, kBox),
              "Your Orvo.ini file belongs to an old version.\n"
              "Do you want to convert it to the new file format ?\n"
              "Converting to the new format will put actual settings into Default Profile.");
    ASSERT_TRUE(cockpit_->StatusBecomes(3, "Aircraft in use: Bench Trainer", kSoonMs));
    EXPECT_EQ(cockpit_->ReadFile("Default.ini"), old);
    EXPECT_TRUE(Fly({{"multi1", "press HDG", "", "0810:00000000 3340:01000000 3340:00000000"}}));
    ExpectQuits();
}

TEST_F(EndToEnd, WithoutPanelsRunsOnlyIfToldToAndNotTwice) {
    cockpit_->StartOrvo();
    EXPECT_EQ(AnswerBox(*cockpit_, "  Orvo"), "No Panel found, check your connections !");
    EXPECT_EQ(cockpit_->Orvo().WaitForEnd(kSoonMs), 0u);
    cockpit_->WriteIni("[GeneralSetup]\r\nLoadWithoutPanels=1\r\n");
    cockpit_->StartSimulator();
    cockpit_->StartOrvo();
    ASSERT_TRUE(cockpit_->StatusBecomes(0, kConnected, kSoonMs));
    const auto second = MakeCockpit("SecondInstance");
    second->StartOrvo();
    EXPECT_EQ(AnswerBox(*second, "Orvo"), "Orvo is already running...");
    EXPECT_EQ(second->Orvo().WaitForEnd(kSoonMs), 0u);
    ExpectQuits();
}

TEST_F(EndToEnd, AutoQuitLeavesWithTheSimulatorAlsoUnderTheQuitBox) {
    cockpit_->WriteIni("[GeneralSetup]\r\nAutoQuit=1\r\n");
    StartConnected();
    QuitBox();
    cockpit_->KillSimulator();
    EXPECT_EQ(cockpit_->Orvo().WaitForEnd(kAfterSilenceMs), 0u);
    EXPECT_EQ(cockpit_->Panels("show multi1"), kMultiDark);
    const std::string saved = cockpit_->ReadFile("Orvo.ini").value_or("");
    EXPECT_TRUE(saved.starts_with("[GeneralSetup]\r\nAutoQuit=1\r\nOrvoPriority=")) << saved;
}

TEST_F(EndToEnd, APanelThatVanishesHurtsNothingElse) {
    StartConnected({"multi1", "multi2"});
    EXPECT_EQ(cockpit_->Panels("unplug multi1"), "ok");
    cockpit_->Panels("selector multi2 HDG");
    cockpit_->Panels("knob multi2 +1 60");
    EXPECT_TRUE(
        cockpit_->PanelBecomes("multi2", "upper \"  081\" lower \"     \" lights none", kSoonMs));
    ExpectQuits();
}

TEST_F(EndToEnd, TheTickKeepsItsPaceUnderAMessageBox) {
    StartConnected();
    const HWND box = QuitBox();
    ExpectTicksKeepTheirPace();
    PressBoxButton(box, IDCANCEL);
    EXPECT_EQ(cockpit_->Status().at(0), kConnected);
    ExpectQuits();
}

TEST_F(EndToEnd, GeneralOptionsAreSavedShownAgainAndTakenBack) {
    const LogonEntry entry;
    cockpit_->WriteIni("[GeneralSetup]\r\nSplash=0\r\n");
    StartConnected();
    HWND window = OpenOptions();
    EXPECT_TRUE(Tick(Child(window, "Button", "Start ORVO when Windows starts")));
    EXPECT_TRUE(ChooseOption(Child(window, "Button", "... ask for a profile to bind")));
    EXPECT_TRUE(MoveSlider(Child(window, TRACKBAR_CLASSA), 1200));
    EXPECT_TRUE(ClickTab(Child(window, "SysTabControl32"), 1));
    HWND frame = Child(window, "Button", "Deckhub.exe");
    EXPECT_TRUE(ChooseInCombo(Child(frame, "ComboBox"), 4));
    EXPECT_FALSE(IsWindowEnabled(Child(frame, "Edit")));
    EXPECT_TRUE(ChooseOption(Child(frame, "Button", "Manual")));
    TypeInto(Child(frame, "Edit"), "3");
    EXPECT_TRUE(DragWindow(window, 90, -60));
    RECT place{};
    GetWindowRect(window, &place);
    ExpectCloses(window, "OK");
    EXPECT_EQ(entry.Data(), cockpit_->Folder() + "\\Orvo.exe");
    const auto twips = [](LONG pixels) { return std::to_string(pixels * 15); };
    const std::string saved =
        "[GeneralSetup]\r\nSplash=0\r\nAutoStart=1\r\nManualProfile=1\r\nOrvoPriority=32\r\n"
        "DeckhubPriority=128\r\nOrvoAffinity=-1\r\nDeckhubAffinity=3\r\nClickThreshold=1200\r\n"
        "GeneralSetupFormTop=" +
        twips(place.top) + "\r\nGeneralSetupFormLeft=" + twips(place.left) +
        "\r\n[Aircrafts]\r\nBench Trainer=Default\r\n";
    EXPECT_EQ(cockpit_->ReadFile("Orvo.ini"), saved);

    window = OpenOptions();
    RECT again{};
    GetWindowRect(window, &again);
    EXPECT_TRUE(EqualRect(&again, &place)) << again.left << ", " << again.top;
    const HWND autoStart = Child(window, "Button", "Start ORVO when Windows starts");
    EXPECT_TRUE(IsTicked(autoStart));
    EXPECT_TRUE(IsTicked(Child(window, "Button", "... ask for a profile to bind")));
    EXPECT_EQ(SliderValue(Child(window, TRACKBAR_CLASSA)), 1200);
    EXPECT_TRUE(Tick(autoStart));
    EXPECT_TRUE(ClickTab(Child(window, "SysTabControl32"), 1));
    frame = Child(window, "Button", "Deckhub.exe");
    EXPECT_EQ(ComboSelection(Child(frame, "ComboBox")), "High");
    EXPECT_TRUE(IsTicked(Child(frame, "Button", "Manual")));
    EXPECT_EQ(TextOf(Child(frame, "Edit")), "3");
    ExpectCloses(window, "Cancel");
    EXPECT_EQ(cockpit_->ReadFile("Orvo.ini"), saved);
    EXPECT_NE(entry.Data(), "");

    window = OpenOptions();
    EXPECT_TRUE(Tick(Child(window, "Button", "Start ORVO when Windows starts")));
    ExpectCloses(window, "OK");
    EXPECT_EQ(entry.Data(), "");
    ExpectQuits();
}

TEST_F(EndToEnd, OptionsThatCannotBeSavedStayInTheirWindow) {
    const std::string file = cockpit_->Folder() + "\\Orvo.ini";
    cockpit_->WriteIni("[GeneralSetup]\r\nSplash=0\r\n");
    StartConnected();
    const HWND window = OpenOptions();
    const HWND autoQuit = Child(window, "Button", "Quit ORVO when Flight Simulator stops");
    const std::string before = cockpit_->ReadFile("Orvo.ini").value_or("");
    EXPECT_TRUE(Tick(autoQuit));
    const HANDLE held =
        CreateFileA(file.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    EXPECT_NE(held, INVALID_HANDLE_VALUE);
    PressButton(Child(window, "Button", "OK"));
    const std::string told = AnswerBox(*cockpit_, "  ORVO");
    EXPECT_NE(told.find(file), std::string::npos) << told;
    EXPECT_TRUE(Until(kSoonMs, [&] { return cockpit_->FrontWindow() == window; }));
    EXPECT_TRUE(IsTicked(autoQuit));
    CloseHandle(held);
    EXPECT_EQ(cockpit_->ReadFile("Orvo.ini"), before);
    ExpectCloses(window, "OK");
    EXPECT_NE(cockpit_->ReadFile("Orvo.ini").value_or("").find("AutoQuit=1"), std::string::npos);
    ExpectQuits();
}

TEST_F(EndToEnd, UnderTheGeneralOptionsPanelsLiveAndTheMainWindowRests) {
    cockpit_->WriteIni("[GeneralSetup]\r\nSplash=0\r\n");
    StartConnected();
    const HWND window = OpenOptions();
    const HWND main = cockpit_->MainWindow();
    EXPECT_FALSE(IsWindowEnabled(main));
    ShowWindow(main, SW_HIDE);  // what the double click would take back
    DoubleClickTrayIcon();
    EnumChildWindows(main, PressOne, 0);
    ExpectTicksKeepTheirPace();
    EXPECT_TRUE(Fly(
        {{"multi1", "selector HDG; knob +1 60", R"(upper "  081" lower "     " lights none)"}}));
    EXPECT_FALSE(IsWindowVisible(main));
    EXPECT_EQ(cockpit_->FrontWindow(), window);
    ExpectCloses(window, "Cancel");
    ExpectQuits();
}

TEST_F(EndToEnd, PanelsAreSetUpByOkAndLeftAloneByCancel) {
    const struct {
        std::string panel, changes, before, after;
    } windows[] = {
        {"Multi",
         "tab Flaps; UP: press No Event; press Reverse Flaps; tab Rotary Knob; tab CRS; slider 5; "
         "press Crs2; tab Buttons; tab VS; Long Click: press FSUIPC Virtual Button; tab REV; "
         "tab Special Modes; press PMDG NGX; list 3 F/D 1",
         "",
         "[MultiPanel1]\r\nLongButtonActionVS=VButton,64,1\r\nFlapsActionUP=None\r\n"
         "RotaryAccelerationCRS=5\r\nNGXHDGShort=0\r\nCourseSel=2\r\nReverseFlaps=1\r\n"},
        {"Radio",
         "tab NAV2; tab Outer Knob; Counter Clockwise: press No Event; slider 3; tab DME; "
         "press DME1 Dist-DME2 Dist.; tab ADF; press ADF2 Active/Standby; type 0.5",
         "",
         "[RadioPanel1]\r\nOutRotDownNAV2=None\r\nRotAccelerationNAV2=3\r\nDMEMode=1\r\n"
         "ADFMode=4\r\nADFInnStep=0.5\r\n"},
        {"Switch",
         "tab Gear Up; Event when switched ON: press No Event; tab Gear Warning; "
         "press Aircraft has retractable gear; tab Engine Selection Mode; press Cowl flaps",
         "", "[SwitchPanel1]\r\nSwitchGEARUPOn=None\r\nRetractableGear=0\r\nSingleCowlFlaps=1\r\n"},
        {"BIP",
         "tile 23; tab Fuel; press LEFT FUEL LOW; press Green; slider 20; tile 1; "
         "press Clear Current Tile",
         "[BIPPanel1]\r\nT0=GEAR_UP,Yellow\r\nT1=GEAR_DOWN,Green\r\n",
         "[BIPPanel1]\r\nT0=GEAR_UP,Yellow\r\nT23=LEFT_FUEL_LOW,Green,20\r\n"},
    };
    StartConnected({"multi1", "radio1", "switch1", "bip1"});
    DoubleClickTrayIcon();
    ASSERT_TRUE(Fly({{"orvo", "", "window open"}}));
    for (const auto& [panel, changes, before, after] : windows) {
        SCOPED_TRACE(panel);
        const std::string others = "[Other]\r\nKey=1\r\n";
        const std::string title = "ORVO - " + panel + " Panel Configuration";
        cockpit_->WriteFile("Default.ini", others + before);
        ASSERT_TRUE(Fly({{"tab", panel + " Panel 1"},
                         {"window", "press Setup", title},
                         {"window", changes},
                         {"window", "press Cancel", "ORVO    v0.5.1"}}));
        EXPECT_EQ(cockpit_->ReadFile("Default.ini"), others + before);
        ASSERT_TRUE(Fly({{"window", "press Setup", title},
                         {"window", changes},
                         {"window", "press OK", "ORVO    v0.5.1"}}));
        EXPECT_EQ(cockpit_->ReadFile("Default.ini"), others + after);
    }
    ExpectQuits();
}

TEST_F(EndToEnd, NewAircraftAskOneAfterTheOtherOverAllWindows) {
    const std::string options = "[GeneralSetup]\r\nSplash=0\r\nAutoQuit=1\r\nManualProfile=1\r\n";
    std::string bound = "[Aircrafts]\r\nBench Trainer=Default\r\n";
    cockpit_->WriteIni(options + bound);
    StartConnected();
    cockpit_->Simulator("title \"First One\"");
    ASSERT_TRUE(FrontComesToSay("First One"));
    const HWND question = cockpit_->FrontWindow();
    EXPECT_TRUE(GetWindowLongA(question, GWL_EXSTYLE) & WS_EX_TOPMOST);
    cockpit_->Simulator("title \"Second One\"");
    EXPECT_TRUE(cockpit_->StatusBecomes(3, "Aircraft in use: Second One", kSoonMs));
    ExpectTicksKeepTheirPace();
    EXPECT_TRUE(Fly(
        {{"multi1", "selector HDG; knob +1 60", R"(upper "  081" lower "     " lights none)"}}));
    EXPECT_EQ(cockpit_->FrontWindow(), question);
    EXPECT_TRUE(Fly({{"window", "type Typed; keys Enter"}, {"profile", "", "Typed"}}));
    ASSERT_TRUE(FrontComesToSay("Second One"));
    bound += "First One=Typed\r\n";
    EXPECT_EQ(cockpit_->ReadFile("Orvo.ini"), options + "[Profiles]\r\nTyped= \r\n" + bound);
    cockpit_->KillSimulator();
    EXPECT_EQ(cockpit_->Orvo().WaitForEnd(kAfterSilenceMs), 0u);
    const std::string saved = cockpit_->ReadFile("Orvo.ini").value_or("");
    EXPECT_EQ(saved.substr(std::min(saved.size(), saved.find("[Aircrafts]"))), bound) << saved;
}

TEST_F(EndToEnd, AnImportTakesTheTickedSectionsOverAsTheyAre) {
    constexpr char kMain[] = "ORVO    v0.5.1";
    constexpr char kProfiles[] = "ORVO - Profiles Configuration";
    const std::string common = "[Common]\r\nSpecialMode=NGX\r\n";
    const std::string multi = "[MultiPanel1]\r\nOwn=\" a; b \"\r\nCourseSel=2 , x\r\n\xE9=%=\r\n";
    const std::string source = common + multi + "[RadioPanel1]\r\nADFMode=3\r\n[Bare]\r\n";
    const std::string kept = "[RadioPanel1]\r\n; mine\r\nADFMode=1\r\n";
    const std::string target = kept + "[Bare]\r\nOld=1\r\n[multipanel1]\r\nCrs=1\r\nOld=1\r\n";
    cockpit_->WriteIni("[Profiles]\r\nSource=\r\nTarget=\r\n");
    cockpit_->WriteFile("Source.ini", source);
    cockpit_->WriteFile("Target.ini", target);
    StartConnected();
    DoubleClickTrayIcon();
    // Down the list to its first profile; from Next over Cancel to the second box and the fourth.
    const std::vector<Step> toTheEnd = {
        {"window", "press Import data from other profiles", "ORVO"},
        {"window", "keys Down Enter Tab Tab Tab Space Tab Tab Space Enter"}};
    ASSERT_TRUE(Fly({{"orvo", "", "window open"},
                     {"window", "press Manage Profiles", kProfiles},
                     {"window", "entry Target"}}));
    ASSERT_TRUE(Fly(toTheEnd));
    ASSERT_TRUE(FrontComesToSay("Confirm the import of selected sections?"));
    ASSERT_TRUE(Fly({{"window", "keys Esc", kProfiles}}));
    EXPECT_EQ(cockpit_->ReadFile("Target.ini"), target);
    ASSERT_TRUE(Fly(toTheEnd));
    ASSERT_TRUE(FrontComesToSay("Confirm the import of selected sections?"));
    ASSERT_TRUE(Fly({{"window", "keys Enter"},
                     {"box", "", "Import successfully completed !"},
                     {"window", "keys Enter", kProfiles}}));
    EXPECT_EQ(cockpit_->ReadFile("Source.ini"), source);
    EXPECT_EQ(cockpit_->ReadFile("Target.ini"), kept + multi);
    ASSERT_TRUE(Fly({{"window", "tab Aircrafts; entry Bench Trainer; keys Enter",
                      "ORVO - Select Aircraft Profile"},
                     {"window", "keys Esc", kProfiles},
                     {"window", "close", kMain}}));
    ExpectQuits();
}

TEST_F(EndToEnd, ASilentServerEndsTheSession) {
    StartConnected();
    cockpit_->Simulator("silent");
    EXPECT_TRUE(cockpit_->PanelBecomes("multi1", kMultiDark, kAfterSilenceMs));
    cockpit_->Simulator("normal");
    EXPECT_TRUE(cockpit_->StatusBecomes(0, kConnected, kAfterSilenceMs));
    ExpectQuits();
}

TEST_F(EndToEnd, RunsWhereItsFileCannotBeWritten) {
    // A folder of that name can be neither read nor replaced.
    std::filesystem::create_directory(cockpit_->Folder() + "\\Orvo.ini");
    StartConnected();
    ExpectQuits();
    EXPECT_TRUE(std::filesystem::is_directory(cockpit_->Folder() + "\\Orvo.ini"));
}

}  // namespace
