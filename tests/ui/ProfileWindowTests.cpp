#include <gtest/gtest.h>

#include "bench/virtual/VirtualCockpit.h"
#include "ui/profiles/frmAircraftProfile.h"
#include "ui/profiles/frmProfileImport.h"
#include "ui/profiles/frmProfileName.h"
#include "ui/profiles/frmProfilesSetup.h"

namespace {

using Names = std::vector<std::string>;
constexpr const char* kInvalid = "Only letters and numbers are admitted in profiles names";
constexpr const char* kInUse = "Profile name already in use.";

// The program with its profiles, and what a user does in their windows.
struct ProfileWindowTest : testing::Test, VirtualCockpit {
    std::vector<std::function<bool(Form&)>> users;
    int opened = 0;

    ProfileWindowTest() {
        ui.User = [this](Form& form) {
            for (size_t i = users.size(); i-- > 0 && !users[i](form);) {
            }
            form.Unload();
        };
    }
    // What the user does in every window of this kind from now on. What stays open behind that is
    // closed by its close box.
    template <class Window>
    void In(const std::function<void(Window&)>& user) {
        users.push_back([this, user](Form& form) {
            auto* window = dynamic_cast<Window*>(&form);
            if (window) ++opened, user(*window);
            return window != nullptr;
        });
    }
    void InProfiles(const std::function<void(frmProfilesSetup&)>& user) {
        In<frmProfilesSetup>(user);
        const int before = opened;
        Window().btnProfiles.Press();
        EXPECT_GT(opened, before);
        EXPECT_FALSE(program->Windows.ModalWindowOpen);
    }
    void Begin(const std::string& lists, const std::string& options = "") {
        Plug(PanelKind::Multi);
        ASSERT_TRUE(Start("Splash=0\r\n" + options + lists));
    }
    static void Select(ListBox& list, const std::string& entry) {
        const auto found = std::ranges::find(list.Items(), entry);
        ASSERT_NE(found, list.Items().end()) << entry;
        list.Choose(static_cast<int32_t>(found - list.Items().begin()));
    }
    static void DoubleClickAircraft(frmProfilesSetup& window, const std::string& aircraft) {
        window.tabMain.Choose(2);
        Select(window.lstAircrafts, aircraft);
        window.lstAircrafts.DoubleClick();
    }

    std::string File(const std::string& name) {
        return machine.files.Look("C:\\Orvo\\" + name + ".ini").value_or("no file");
    }
    std::string Lists() { return File("Orvo").substr(File("Orvo").find("[Pro")); }
    // Text and icon of the boxes since the last look.
    Names Boxes() {
        Names boxes;
        for (const auto& box : std::exchange(ui.Boxes, {})) {
            const bool critical = box.icon == MsgBoxIcon::Critical;
            boxes.push_back((critical                              ? "!"
                             : box.icon == MsgBoxIcon::Information ? "i"
                                                                   : "") +
                            box.text);
        }
        return boxes;
    }
    void FlyAircraft(const std::string& title) {
        SetTitle(title);
        Tick(), Tick();
    }
};

}  // namespace

TEST_F(ProfileWindowTest, DeletingGoesThroughItsChecks) {
    const char* bound =
        "!The selected profile is bound to at list one Aircraft. You can't delete a profile bound.";
    const char* used =
        "!The selected profile is currently in use. You can't delete the profile in use.";
    const char* sure = "Are you sure you want to delete this profile ?";
    PutProfile("Free", "[Common]\r\nSpecialMode=NGX\r\n");
    PutProfile("Stuck", "[S]\r\nk=1\r\n");
    Begin(
        "[Profiles]\r\nBound= \r\nUsed= \r\nFree= \r\nBare= \r\nStuck= \r\nLate= \r\n"
        "[Aircrafts]\r\nTwin=bound\r\n");
    InProfiles([&](frmProfilesSetup& window) {
        const auto erase = [&](const char* profile, MsgBoxResult answer = MsgBoxResult::Ok) {
            ui.Answer = [answer](auto&) { return answer; };
            Select(window.lstProfiles, profile);
            window.cmdDelete.Press();
            return Boxes();
        };
        program->Profiles.CurrentProfile = "bound";
        EXPECT_EQ(erase("Bound"), Names{bound}) << "the first check that refuses";
        EXPECT_EQ(window.lstProfiles.Text(), "Bound") << "the window stays as it was";
        program->Profiles.CurrentProfile = "Used";
        EXPECT_EQ(erase("Used"), Names{used});
        EXPECT_EQ(erase("Default"), Names());
        EXPECT_FALSE(window.cmdDelete.Enabled);
        EXPECT_EQ(erase("Free", MsgBoxResult::Cancel), Names{sure});
        EXPECT_EQ(window.lstProfiles.ListCount(), 7);
        window.cmdDelete.Press();
        EXPECT_EQ(Boxes(), Names{"iNo profile is currently selected"}) << "the lists were refilled";
        EXPECT_EQ(erase("Bare"), Names{sure}) << "one without a file";
        machine.files.Hold("C:\\Orvo\\Orvo.ini");
        EXPECT_EQ(erase("Free").size(), 2u) << "refused, and told";
        machine.files.Hold("");
        EXPECT_EQ(File("Free"), "[Common]\r\nSpecialMode=NGX\r\n");
        EXPECT_EQ(erase("Free"), Names{sure});
        machine.files.Refuse(FileCall::Delete);
        EXPECT_EQ(erase("Stuck"), Names{sure});
        machine.files.Refuse(FileCall::Delete, 0);
        Select(window.lstProfiles, "Late");
        ui.Answer = [this](auto&) {
            program->Profiles.AddAircraft("New", "Late");
            return MsgBoxResult::Ok;
        };
        window.cmdDelete.Press();
        EXPECT_EQ(Boxes(), (Names{sure, bound})) << "an aircraft has come under the question";
        EXPECT_EQ(window.lstProfiles.Items(), (Names{"Bound", "Used", "Late", "Default"}));
    });
    EXPECT_EQ(File("Free"), "no file");
    EXPECT_NE(File("Stuck"), "no file");
    EXPECT_EQ(Lists(),
              "[Profiles]\r\nBound= \r\nUsed= \r\nLate= \r\n"
              "[Aircrafts]\r\nTwin=bound\r\nNew=Late\r\n");
}

TEST_F(ProfileWindowTest, NewProfilesHaveNamesOfTheirOwnAndDefaultStaysLast) {
    const struct {
        const char *name, *asNew, *forAircraft;  // what each window says; null when it closes
    } cases[] = {
        {"My Profile", kInvalid, kInvalid}, {"Jet", kInUse, nullptr}, {"jet", kInUse, kInUse},
        {"DEFAULT", kInUse, kInUse},        {"Orvo", kInUse, kInUse}, {"com9", kInUse, kInUse},
        {"\xC4rger", kInvalid, kInvalid},   {"", nullptr, kInvalid},  {"747", nullptr, nullptr},
        {"New2", nullptr, nullptr}};
    Begin("[Profiles]\r\nJet= \r\n[Aircrafts]\r\nTwin=Jet\r\n");
    for (const auto& [name, asNew, forAircraft] : cases) {
        SCOPED_TRACE(name);
        In<frmProfileName>([&](frmProfileName& window) {
            window.txtProfile.Type(name);
            window.cmdOk.Press();
            EXPECT_EQ(Boxes(), asNew ? Names{asNew} : Names());
            EXPECT_EQ(window.IsUnloaded(), !asNew);
            window.cmdCancel.Press();
        });
        In<frmAircraftProfile>([&](frmAircraftProfile& window) {
            EXPECT_EQ(window.Label1.Caption.Get(), "Twin");
            EXPECT_EQ(window.cmbProfiles.Text(), "Default");
            window.cmbProfiles.Type(name);
            window.cmdOk.Press();
            EXPECT_EQ(Boxes(), forAircraft ? Names{forAircraft} : Names());
            EXPECT_EQ(window.IsUnloaded(), !forAircraft);
        });
        InProfiles([&](frmProfilesSetup& window) {
            window.cmdNew.Press();
            EXPECT_EQ(window.lstProfiles.ListIndex(), -1);
            DoubleClickAircraft(window, "Twin");
            EXPECT_EQ(window.lstAircrafts.Text(), "Twin");
            EXPECT_EQ(window.labProfile.Caption.Get() == name, !forAircraft);
        });
    }
    EXPECT_EQ(Window().cmbProfiles.Items(), (Names{"Jet", "747", "New2", "Default"}));
    EXPECT_EQ(Lists(), "[Profiles]\r\nJet= \r\n747= \r\nNew2= \r\n[Aircrafts]\r\nTwin=New2\r\n");
    EXPECT_EQ(File("747"), "no file");
}

TEST_F(ProfileWindowTest, SpecialModeStandsInTheProfilesFile) {
    PutProfile("A", "[Common]\r\nName=x\r\nSpecialMode=ngx\r\n");
    PutProfile("B", "[Common]\r\nSpecialMode=xyz\r\n");
    PutProfile("C", "[Common]\r\nspecialmode=Maddog\r\n");
    Begin("[Profiles]\r\nB= \r\nA= \r\nC= \r\n[Aircrafts]\r\nBaron 58=A\r\n");
    Connect();
    InProfiles([&](frmProfilesSetup& window) {
        EXPECT_TRUE(window.optSpecialMode[0].Value());
        EXPECT_EQ(File("B"), "[Common]\r\nSpecialMode=xyz\r\n") << "the option was that one";
        Select(window.lstProfiles, "A");
        EXPECT_TRUE(window.optSpecialMode[2].Value());
        EXPECT_EQ(File("A"), "[Common]\r\nName=x\r\nSpecialMode=NGX\r\n");
        Select(window.lstProfiles, "B");
        EXPECT_TRUE(window.optSpecialMode[0].Value());
        EXPECT_EQ(File("B"), "[Common]\r\n");
        Select(window.lstProfiles, "C");
        EXPECT_TRUE(window.optSpecialMode[1].Value());
        EXPECT_EQ(File("C"), "[Common]\r\nSpecialMode=MADDOG\r\n");
        Select(window.lstProfiles, "Default");
        window.optSpecialMode[2].Press(), window.optSpecialMode[0].Press();
        EXPECT_EQ(File("Default"), "[Common]\r\n");
        Select(window.lstProfiles, "A");
        window.optSpecialMode[1].Press();
        EXPECT_EQ(program->Session.SpecialMode, kNGXMode) << "until it is applied";

        machine.files.Hold("C:\\Orvo\\B.ini");
        Select(window.lstProfiles, "B");
        for (const auto& option : window.optSpecialMode) EXPECT_FALSE(option.Value());
        EXPECT_EQ(Boxes().size(), 0u);
        window.optSpecialMode[2].Press();
        EXPECT_EQ(Boxes().size(), 1u);
        EXPECT_FALSE(window.optSpecialMode[2].Value());
        window.cmdNew.Press();
        In<frmProfileImport>([](frmProfileImport&) { ADD_FAILURE(); });
        window.optSpecialMode[1].Press(), window.cmdImport.Press();
        EXPECT_FALSE(window.optSpecialMode[1].Value()) << "no profile is selected";
    });
    EXPECT_EQ(program->Session.SpecialMode, kMaddogMode);
    EXPECT_EQ(File("B"), "[Common]\r\n");
}

TEST_F(ProfileWindowTest, ClosingSettlesTheProfileInUse) {
    PutProfile("Jet", "[Common]\r\nSpecialMode=NGX\r\n");
    Begin(
        "[Profiles]\r\nJet= \r\nProp= \r\nOld= \r\n[Aircrafts]\r\nBaron 58=Prop\r\nTwin=Prop\r\n");
    Window().cmbProfiles.Choose(0);
    InProfiles([](frmProfilesSetup&) {});
    EXPECT_EQ(Window().cmbProfiles.Text(), "Jet") << "no aircraft yet";
    Connect();
    Window().cmbProfiles.Choose(0);
    InProfiles([](frmProfilesSetup&) {});
    EXPECT_EQ(Window().cmbProfiles.Text(), "Prop");
    In<frmAircraftProfile>([](frmAircraftProfile& window) {
        window.cmbProfiles.Type(window.Label1.Caption.Get() == "Twin" ? "New" : "Jet");
        window.cmdOk.Press();
    });
    InProfiles([&](frmProfilesSetup& window) {
        Select(window.lstProfiles, "Old");
        window.cmdDelete.Press();
        DoubleClickAircraft(window, "Twin");
        FlyAircraft("Twin");
        EXPECT_EQ(Window().cmbProfiles.Text(), "New");
        FlyAircraft("Baron 58");
        machine.files.Hold("C:\\Orvo\\Orvo.ini");
        DoubleClickAircraft(window, "Baron 58");
    });
    EXPECT_EQ(Boxes().size(), 2u) << "the question, and that the list can't be saved";
    EXPECT_EQ(program->Profiles.CurrentProfile, "Jet");
    EXPECT_EQ(program->Session.SpecialMode, kNGXMode);
    machine.files.Hold("");
    machine.loop.Advance(600);
    EXPECT_NE(Lists().find("Baron 58=Jet"), std::string::npos) << "saved later";
}

TEST_F(ProfileWindowTest, NewAircraftIsAskedForOnceWhateverComesMeanwhile) {
    Begin("[Profiles]\r\nJet= \r\n[Aircrafts]\r\nBaron 58=Jet\r\n", "ManualProfile=1\r\n");
    Connect();
    std::vector<std::function<void(frmAircraftProfile&)>> answers = {
        [&](frmAircraftProfile& window) {
            EXPECT_TRUE(window.StaysOnTop && program->Windows.ModalWindowOpen);
            EXPECT_EQ(window.Label1.Caption.Get(), "Cessna");
            FlyAircraft("Glider");
            LoseSimulator();
            SetTitle("Cessna");
            Connect();
            window.cmbProfiles.Type("Prop");
            window.cmdOk.Press();
        },
        [&](frmAircraftProfile& window) {
            LoseSimulator();
            window.cmdCancel.Press();
        },
        [](frmAircraftProfile& window) {
            window.cmbProfiles.Type("Sail");
            window.cmdOk.Press();
        },
        [&](frmAircraftProfile&) { Window().Unload(); }};
    Names asked;
    In<frmAircraftProfile>([&](frmAircraftProfile& window) {
        asked.push_back(window.Label1.Caption);
        ASSERT_LE(asked.size(), answers.size());
        answers[asked.size() - 1](window);
    });
    FlyAircraft("Cessna");
    EXPECT_EQ(Window().cmbProfiles.Text(), "Prop");
    FlyAircraft("Learjet");
    Connect();
    EXPECT_EQ(Window().cmbProfiles.Text(), "") << "the user gave none";
    InProfiles([&](frmProfilesSetup& window) {
        Select(window.lstProfiles, "Prop");
        FlyAircraft("Glider");
        EXPECT_EQ(window.lstProfiles.Items(), (Names{"Jet", "Prop", "Sail", "Default"}));
        EXPECT_EQ(window.lstProfiles.Text(), "Prop");
        window.tabMain.Choose(2);
        Select(window.lstAircrafts, "Glider");
        EXPECT_EQ(window.labProfile.Caption.Get(), "Sail");
    });
    EXPECT_EQ(program->Profiles.CurrentProfile, "Sail");
    FlyAircraft("Zeppelin");
    EXPECT_TRUE(Window().IsUnloaded());
    EXPECT_EQ(asked, (Names{"Cessna", "Learjet", "Glider", "Zeppelin"}));
    EXPECT_EQ(Lists(),
              "[Profiles]\r\nJet= \r\nProp= \r\nSail= \r\n[Aircrafts]\r\nBaron 58=Jet\r\n"
              "Cessna=Prop\r\nLearjet=\r\nGlider=Sail\r\n");
}

TEST_F(ProfileWindowTest, ListsThatCannotBeReadAreNotEdited) {
    Begin("[Profiles]\r\nJet= \r\n");
    machine.files.Hold("C:\\Orvo\\Orvo.ini");
    program->Profiles.LoadProfileList();
    Window().btnProfiles.Press();
    EXPECT_EQ(opened, 0);
    ASSERT_EQ(ui.Boxes.size(), 1u);
    EXPECT_NE(ui.Boxes[0].text.find("couldn't be read"), std::string::npos);
}

TEST_F(ProfileWindowTest, ImportTakesTheTickedSectionsInThreeSteps) {
    std::string twelve;
    for (int i = 1; i <= 12; ++i) twelve += "[S&" + std::to_string(i) + "]\r\nk=1\r\n";
    PutProfile("Many", twelve);
    PutProfile("Source",
               "[Common]\r\nSpecialMode=ngx\r\n[Empty]\r\n[MultiPanel1]\r\nb=2\r\na= 1 \r\n");
    const std::string before = "[MultiPanel1]\r\nold=1\r\n[Empty]\r\nk=1\r\n[Kept]\r\nk=1\r\n";
    const std::string after =
        "[Kept]\r\nk=1\r\n[Common]\r\nSpecialMode=ngx\r\n[MultiPanel1]\r\nb=2\r\na=1\r\n";
    PutProfile("Default", before);
    Begin("[Profiles]\r\nBare= \r\nMany= \r\nSource= \r\n");
    const auto next = [](frmProfileImport& window, const char* source) {
        Select(window.lstProfiles, source);
        window.cmdOk.Press();
    };
    In<frmProfileImport>([&](frmProfileImport& window) {
        EXPECT_EQ(window.lblTargetProfile.Caption.Get(), "Default");
        EXPECT_EQ(window.lstProfiles.Items(), (Names{"Bare", "Many", "Source"}));
        EXPECT_EQ(window.cmdOk.Caption.Get(), "Next");
        window.cmdOk.Press();
        EXPECT_EQ(window.Step, 0) << "nothing is selected";
        next(window, "Bare");
        EXPECT_EQ(Boxes(), Names{"!The selected profile has not sections to import"});
        machine.files.Hold("C:\\Orvo\\Source.ini");
        next(window, "Source");
        EXPECT_EQ(Boxes().size(), 1u) << "it can't be read";
        machine.files.Hold("");
        EXPECT_EQ(window.Step, 0);
        next(window, "Many");
        ASSERT_EQ(window.Step, 1);
        EXPECT_EQ(window.chkSection[9].Caption.Get(), "S&&10");
        EXPECT_TRUE(window.chkSection[9].TakesActs() && !window.lstProfiles.TakesActs());
        window.cmdCancel.Press();
    });
    InProfiles([&](frmProfilesSetup& window) {
        Select(window.lstProfiles, "Default");
        window.cmdImport.Press();
        In<frmProfileImport>([&](frmProfileImport& wizard) {
            next(wizard, "Source");
            EXPECT_FALSE(wizard.chkSection[3].TakesActs());
            wizard.cmdOk.Press();
            EXPECT_EQ(Boxes(), Names{"!You have selected no sections. Please select at least one "
                                     "section before proceeding"});
            for (int i = 0; i < 3; ++i) wizard.chkSection[i].Press();
            wizard.cmdOk.Press();
            EXPECT_TRUE(wizard.Step == 2 && wizard.frameWizard[2].Visible);
            EXPECT_EQ(wizard.lblSourceProfile.Caption.Get(), "Source");
            EXPECT_EQ(wizard.cmdOk.Caption.Get(), "Ok");
            EXPECT_EQ(File("Default"), before);
            machine.files.Refuse(FileCall::Replace);
            wizard.cmdOk.Press();
            EXPECT_EQ(Boxes().size(), 1u) << "refused";
            EXPECT_EQ(File("Default"), before);
            machine.files.Refuse(FileCall::Replace, 0);
            wizard.cmdOk.Press();
            EXPECT_EQ(Boxes(), Names{"iImport successfully completed !"});
            EXPECT_TRUE(wizard.IsUnloaded());
        });
        window.cmdImport.Press();
        EXPECT_TRUE(window.optSpecialMode[2].Value()) << "as the file says now";
        EXPECT_EQ(program->Session.SpecialMode, kStandardMode);
    });
    EXPECT_EQ(program->Session.SpecialMode, kNGXMode);
    EXPECT_EQ(File("Default"), after) << "the text as it was";
}

TEST_F(ProfileWindowTest, ImportOffersTenSectionsOfAsManyAsThereAre) {
    std::string ten, twelve;
    for (int i = 1; i <= 12; ++i) {
        twelve += "[S" + std::to_string(i) + "]\r\nk=1\r\n";
        if (i == 10) ten = twelve;
    }
    PutProfile("Ten", ten);
    PutProfile("Twelve", twelve);
    Begin("[Profiles]\r\nBare= \r\nTen= \r\nTwelve= \r\n");
    for (const char* source : {"Ten", "Twelve"}) {
        machine.files.Delete("C:\\Orvo\\Bare.ini");
        In<frmProfileImport>([source](frmProfileImport& window) {
            Select(window.lstProfiles, source);
            window.cmdOk.Press();
            for (CheckBox& box : window.chkSection) box.Press();
            window.cmdOk.Press();
            window.cmdOk.Press();
        });
        InProfiles([](frmProfilesSetup& window) { window.cmdImport.Press(); });
        EXPECT_EQ(Boxes(), Names{"iImport successfully completed !"});
        EXPECT_EQ(File("Bare"), ten) << source << " into a profile without a file";
    }
}
