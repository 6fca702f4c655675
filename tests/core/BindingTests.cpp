#include <gtest/gtest.h>

#include "bench/virtual/VirtualCockpit.h"

namespace {

struct BindingTest : testing::Test, VirtualCockpit {
    VirtualDevice& device = Plug(PanelKind::Multi);
    int applied = 0;
    std::vector<std::string> asked;

    std::optional<std::string> answer = "";
    std::function<void()> beforeAnswer = [] {};

    // Two aircraft are bound, the first one is flown.
    void Fly(const std::string& options = "") {
        device.positions = {0, 0x08, 0, 0};
        machine.server.Set<uint16_t>(0x07CC, 16384);
        machine.server.Set<uint16_t>(0x652C, 247);
        PutProfile("Airliner", "[Common]\r\nName=x\r\nSpecialMode=NGX\r\n");
        PutProfile("Plain", "[Common]\r\nspecialmode=ngx\r\n");
        PutProfile("Default", "[Common]\r\nSpecialMode=other\r\n");
        Start("Splash=0\r\n" + options + "[Profiles]\r\nAirliner= \r\nPlain= \r\n" +
              "[Aircrafts]\r\nBaron 58=Airliner\r\nTwin=Airliner\r\n");
        Window().cmbProfiles.Click.Connect([this] { ++applied; });
        Window().Binding.AskForProfile = [this](const std::string& title) {
            asked.push_back(title);
            EXPECT_TRUE(program->Windows.ModalWindowOpen);
            beforeAnswer();
            return answer;
        };
        Connect();
    }
    // Profile, entry of the list, mode and rows with an aircraft.
    std::string With(const std::string& title) {
        SetTitle(title);
        for (int i = 0; i < 2; ++i) Tick();
        return program->Profiles.CurrentProfile + " " + Window().cmbProfiles.Text() + " " +
               std::to_string(program->Session.SpecialMode) + " " + Shown();
    }
    void ExpectBound(const std::string& added) {
        const std::string text = *machine.files.Look("C:\\Orvo\\Orvo.ini");
        EXPECT_EQ(text.substr(text.find("Baron 58")),
                  "Baron 58=Airliner\r\nTwin=Airliner\r\n" + added);
    }
};

TEST_F(BindingTest, EachTitleBringsItsProfile) {
    Fly();
    EXPECT_EQ(applied, 1);
    EXPECT_EQ(With("Baron 58"), "Airliner Airliner 2 247|") << "NGX, behind another key";
    EXPECT_EQ(With("Cessna"), "Default Default 0 090|") << "another word";
    EXPECT_EQ(With("BARON 58"), "Airliner Airliner 2 247|") << "shared whatever the case";
    With("Twin");
    EXPECT_EQ(applied, 4);
    Window().cmbProfiles.SetListIndex(1);
    LoseSimulator();
    Connect();
    EXPECT_EQ(With("Twin"), "Plain Plain 0 090|") << "the user's choice, until the title changes";
    With("Cessna");
    EXPECT_EQ(With("Twin"), "Airliner Airliner 2 247|");
    ExpectBound("Cessna=Default\r\n");
    for (const auto& report : device.featureReports) EXPECT_NE(report[4], 0) << "nothing unread";
}

TEST_F(BindingTest, NewAircraftGetsWhatTheUserSays) {
    Fly("ManualProfile=1\r\n");
    EXPECT_EQ(With("Cessna"), "  2 247|") << "cancelled: the panels stay as they were";
    answer = "Plain";
    EXPECT_EQ(With("Glider"), "Plain Plain 0 090|");
    EXPECT_EQ(applied, 2);
    With("Twin");
    EXPECT_EQ(With("Glider"), "Plain Plain 0 090|");
    With("Cessna");
    EXPECT_EQ(asked, (std::vector<std::string>{"Cessna", "Glider"})) << "only once";
    EXPECT_FALSE(program->Windows.ModalWindowOpen);
    ExpectBound("Cessna=\r\nGlider=Plain\r\n");
}

TEST_F(BindingTest, PanelsLiveOnWhileTheUserIsAsked) {
    beforeAnswer = [this] {
        if (asked.size() > 1) return;
        machine.server.Set<uint16_t>(0x652C, 248);
        EXPECT_EQ(With("Glider"), "Airliner Airliner 2 248|") << "with the old profile";
        EXPECT_EQ(asked.size(), 1U);
    };
    Fly("ManualProfile=1\r\n");
    With("Cessna");
    EXPECT_EQ(asked, (std::vector<std::string>{"Cessna", "Glider"})) << "one after the other";
}

TEST_F(BindingTest, SimulatorMayGoWhileTheUserIsAsked) {
    beforeAnswer = [this] {
        program->GeneralSetup.AutoQuit = asked.size() > 1;
        LoseSimulator();
    };
    Fly("ManualProfile=1\r\n");
    for (const auto& each : {std::optional<std::string>(), std::optional<std::string>("Plain")}) {
        answer = each;
        SetTitle("Cessna");
        Connect();
        EXPECT_FALSE(program->Session.FSConnected);
        EXPECT_EQ(device.featureReports.back()[1], kMultiDark);
        EXPECT_EQ(Window().IsUnloaded(), asked.size() > 1);
        EXPECT_EQ(Window().Aircraft.Text.Get(), "Aircraft in use:");
        ExpectBound(!answer ? "" : "Cessna=Plain\r\n");
    }
}

TEST_F(BindingTest, ModeOfTheDefaultProfileIsInForceBeforeTheLogicsStart) {
    Plug(PanelKind::Multi, 2);
    PutProfile("Default", "[Common]\r\nSpecialMode=ngx\r\n[MultiPanel2]\r\nNGXAPShort=4\r\n");
    Start();
    EXPECT_EQ(program->Session.OffsetTable.Item("AT-ARM")->Offset, 0x6535);
    const cOffsetTable& table = program->Session.OffsetTable;
    EXPECT_EQ(table.Item("AP-MASTER 1")->Offset, 0x6545) << "each panel has lights of its own";
    EXPECT_EQ(table.Item("AP-MASTER 2")->Offset, 0x6540);
    PutProfile("Default", "[Common]\r\nSpecialMode=ngx\r\n[MultiPanel2]\r\nNGXAPShort=7\r\n");
    Window().cmbProfiles.SetListIndex(0);
    EXPECT_EQ(table.Item("AP-MASTER 2")->Offset, 0x653F);
}

TEST_F(BindingTest, ProfileThatIsNotInTheListCountsAsDefault) {
    Fly();
    PutProfile("Gone", "[Common]\r\nSpecialMode=ngx\r\n");
    program->Profiles.AddAircraft("Lost", "Gone");
    program->Profiles.AddAircraft("Evil", "..\\Gone");
    EXPECT_EQ(With("Baron 58"), "Airliner Airliner 2 247|");
    EXPECT_EQ(With("Lost"), "Default Default 0 090|");
    With("Baron 58");
    EXPECT_EQ(With("Evil"), "Default Default 0 090|");
    ExpectBound("Lost=Gone\r\nEvil=..\\Gone\r\n");
}

TEST_F(BindingTest, HeldProfileComesWhenItIsFree) {
    Fly();
    With("Cessna");
    Window().cmbProfiles.SetListIndex(1);
    machine.files.Hold("C:\\Orvo\\Airliner.ini");
    EXPECT_EQ(With("Baron 58"), "Airliner Airliner 0 090|") << "as it was, not built-in";
    EXPECT_FALSE(Logic().MPActions->SaveSetup());
    const int reads = machine.files.ReadCount();
    machine.loop.Advance(2000);
    EXPECT_GT(machine.files.ReadCount(), reads);
    EXPECT_LE(machine.files.ReadCount(), reads + 20) << "not at every tick";
    program->Windows.ModalWindowOpen = true;
    machine.files.Hold("");
    machine.loop.Advance(1000);
    EXPECT_EQ(program->Session.SpecialMode, kStandardMode) << "not under an open window";
    program->Windows.ModalWindowOpen = false;
    machine.loop.Advance(600);
    EXPECT_EQ(With("Baron 58"), "Airliner Airliner 2 247|");
    EXPECT_TRUE(Logic().MPActions->SaveSetup());
    const int done = machine.files.ReadCount();
    machine.loop.Advance(2000);
    EXPECT_EQ(machine.files.ReadCount(), done) << "nothing waits any more";
}

// The list is read before anything is bound: it may say what the aircraft's profile is.
TEST_F(BindingTest, AircraftIsBoundWhenTheListCanBeRead) {
    machine.files.Hold("C:\\Orvo\\Orvo.ini");
    Fly("ManualProfile=1\r\n");
    answer = "Plain";
    EXPECT_EQ(With("Twin"), "Default Default 0 090|");
    EXPECT_EQ(With("New"), "Default Default 0 090|");
    machine.loop.Advance(1000);
    machine.files.Hold("");
    machine.loop.Advance(600);
    EXPECT_EQ(asked, std::vector<std::string>{"New"});
    EXPECT_EQ(With("New"), "Plain Plain 0 090|");
    EXPECT_EQ(With("Twin"), "Airliner Airliner 2 247|");
    ExpectBound("New=Plain\r\n");
}

TEST_F(BindingTest, ProgramMayEndWhileTheUserIsAskedLate) {
    machine.files.Hold("C:\\Orvo\\Orvo.ini");
    Fly("ManualProfile=1\r\nAutoQuit=1\r\n");
    answer.reset();
    beforeAnswer = [this] {
        LoseSimulator();
        machine.ipc.AddWindow("UIPCMAIN");
    };
    With("Cessna");
    machine.files.Hold("");
    machine.loop.Advance(2000);
    EXPECT_EQ(asked, std::vector<std::string>{"Cessna"});
    EXPECT_TRUE(Window().IsUnloaded());
    EXPECT_FALSE(program->Session.FSConnected);
    ExpectBound("");
}

TEST_F(BindingTest, BindingThatCouldNotBeWrittenIsWrittenLater) {
    Fly();
    machine.files.Hold("C:\\Orvo\\Orvo.ini");
    EXPECT_EQ(With("Cessna"), "Default Default 0 090|");
    machine.loop.Advance(2000);
    ExpectBound("");
    machine.files.Hold("");
    machine.loop.Advance(600);
    ExpectBound("Cessna=Default\r\n");
    machine.files.Refuse(FileCall::Replace, 3);
    With("Glider");
    ExpectBound("Cessna=Default\r\n");
    Window().Unload();
    ExpectBound("Cessna=Default\r\nGlider=Default\r\n");
}

}  // namespace
