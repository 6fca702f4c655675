#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "config/ProfileStore.h"
#include "config/cInifile.h"
#include "config/cSetupHolder.h"
#include "platform/virtual/VirtualPlatform.h"
#include "simlink/devices/ButtonPress.h"

namespace {

const std::string kPath = "C:\\Orvo\\Orvo.ini";
const std::string kRun = "Software\\Microsoft\\Windows\\CurrentVersion\\Run";
constexpr uint32_t kCurrentUser = 0x80000001;

struct ConfigTest : testing::Test {
    VirtualPlatform machine;
    cSetupHolder setup{machine.ini, machine.files, machine.clock, machine.registry, "C:\\Orvo"};

    void Load(const std::string& content) {
        machine.files.Put(kPath, content);
        ASSERT_TRUE(setup.LoadSetup());
    }
    std::string Saved(bool works = true) {
        EXPECT_EQ(bool(setup.SaveSetup()), works);
        return machine.files.Look(kPath).value_or("no file");
    }
    bool SavedHas(const std::string& line) {
        return Saved().find("\r\n" + line + "\r\n") != std::string::npos;
    }
};

TEST_F(ConfigTest, InifileValuesAndDefaults) {
    cInifile ini(machine.ini);
    ini.Path = kPath;
    ini.Section = "A";
    ini.Key = "Long";
    EXPECT_EQ(ini.Value(), "");
    ini.Default = "x";
    EXPECT_EQ(ini.Value(), "x");
    ini.SetValue(std::string(300, 'v'));
    EXPECT_EQ(ini.Value(), std::string(254, 'v'));
    ini.SetValue(std::string("a\0b", 3));
    EXPECT_EQ(ini.Value(), "ab");
    EXPECT_TRUE(ini.Success());
    ini.DeleteKey();
    EXPECT_EQ(ini.Value(), "x");
    machine.files.Protect(kPath);
    ini.SetValue("y");
    EXPECT_EQ(ini.LastReturnCode(), 0);
}

TEST_F(ConfigTest, EnumerationStopsAtTheLimitWithWholeNames) {
    std::string content = "[A]\r\n";
    for (int i = 0; i < 100; ++i) {
        content += std::string(98, 'k') + std::to_string(i + 100) + "=1\r\n";
    }
    machine.files.Put(kPath, content + "[B]\r\nx=1\r\n");
    cInifile ini(machine.ini);
    ini.Path = kPath;
    ini.Section = "a";
    std::vector<std::string> names;
    int32_t count = -1;
    ini.EnumerateCurrentSection(names, count);
    ASSERT_EQ(count, 8190 / 102);
    EXPECT_EQ(names.back().size(), 101U);
    ini.EnumerateAllSections(names, count);
    EXPECT_EQ(names, (std::vector<std::string>{"A", "B"}));
    ini.Section = "none";
    ini.DeleteSection();
    ini.EnumerateCurrentSection(names, count);
    EXPECT_EQ(count, 0);
}

TEST_F(ConfigTest, OptionsWithoutAFileAreTheDefaults) {
    EXPECT_TRUE(setup.LoadSetup());
    EXPECT_FALSE(setup.AutoQuit);
    EXPECT_TRUE(setup.Splash);
    EXPECT_EQ(setup.ClickThreshold, 500);
    EXPECT_EQ(Saved(),
              "[GeneralSetup]\r\nOrvoPriority=32\r\nDeckhubPriority=32768\r\n"
              "OrvoAffinity=-1\r\nDeckhubAffinity=-1\r\n");
}

TEST_F(ConfigTest, OddValuesLeaveTheDefaultAndTheOthersLoad) {
    Load(
        "[generalsetup]\r\nAutoQuit=2\r\nLoadWithoutPanels= 1 \r\nautostart=1\r\nUnknown=5\r\n"
        "OrvoPriority=high\r\nOrvoAffinity=5\r\nClickThreshold=99999999999\r\n"
        "EngineStarterMode=256\r\nMainFormTop=-150\r\nSplash=0");
    EXPECT_FALSE(setup.AutoQuit);
    EXPECT_TRUE(setup.LoadWithoutPanels);
    EXPECT_FALSE(setup.AutoStart) << "names of options compare exactly";
    EXPECT_EQ(setup.OrvoPriority, 32);
    EXPECT_EQ(setup.OrvoAffinity, 5);
    EXPECT_EQ(setup.ClickThreshold, 500);
    EXPECT_EQ(setup.EngineStarterMode, 0);
    EXPECT_EQ(setup.MainFormTop, -150);
    EXPECT_FALSE(setup.Splash);
    setup.LoadDefaults();
    EXPECT_TRUE(setup.Splash);
}

TEST_F(ConfigTest, HugeOrBinaryFilesLoadWhatTheyHold) {
    std::string content(200000, '\xFF');
    content[1000] = '\0';
    Load(content + "\r\n[GeneralSetup]\r\nAutoQuit=1\r\n" + std::string(70000, '=') + "\r\n[");
    EXPECT_TRUE(setup.AutoQuit);
    Load(std::string("\0\0[\0", 4));
    EXPECT_FALSE(setup.AutoQuit);
}

TEST_F(ConfigTest, SavingKeepsWhatDiffersAndWhatIsNotOurs) {
    Load(
        "; mine\r\n[GeneralSetup]\r\nSplash=0\r\nClickThreshold=400\r\nOther=1\r\n[Profiles]\r\nA= "
        "\r\n");
    EXPECT_TRUE(SavedHas("ClickThreshold=400"));
    setup.ClickThreshold = 500;
    setup.AutoQuit = true;
    setup.MainFormLeft = 15;
    const std::string saved = Saved();
    EXPECT_EQ(saved.find("ClickThreshold"), std::string::npos);
    for (const char* line : {"; mine", "Splash=0", "Other=1", "AutoQuit=1", "MainFormLeft=15"}) {
        EXPECT_NE(saved.find(std::string(line) + "\r\n"), std::string::npos) << line;
    }
    EXPECT_EQ(machine.files.Paths(), std::vector<std::string>{"c:\\orvo\\orvo.ini"});
}

TEST_F(ConfigTest, LogonEntryFollowsAutoStart) {
    setup.AutoStart = true;
    EXPECT_TRUE(SavedHas("AutoStart=1"));
    const auto* entry = machine.registry.Look(kCurrentUser, kRun, "ORVO");
    ASSERT_NE(entry, nullptr);
    EXPECT_EQ(entry->data, "C:\\Orvo\\Orvo.exe");
    EXPECT_EQ(entry->type, 1U);
    setup.AutoStart = false;
    EXPECT_EQ(Saved().find("AutoStart"), std::string::npos);
    EXPECT_EQ(machine.registry.Look(kCurrentUser, kRun, "ORVO"), nullptr);
    machine.registry.Refuse(RegistryCall::WriteValue);
    setup.AutoStart = true;
    EXPECT_NE(Saved().find("AutoStart=1"), std::string::npos);
}

TEST_F(ConfigTest, AnyWriteThatFailsLeavesTheWholeFile) {
    const std::string before = "[GeneralSetup]\r\nAutoQuit=1\r\n[Profiles]\r\nA= \r\n";
    for (const FileCall call : {FileCall::Write, FileCall::Read, FileCall::Replace}) {
        Load(before);
        setup.AutoQuit = false;
        setup.OrvoPriority = 64;
        machine.files.Refuse(call);
        EXPECT_EQ(Saved(false), before);
        machine.files.Refuse(call, 0);
        EXPECT_EQ(machine.files.Paths().size(), 1U) << "no copy is left";
    }
    machine.files.Refuse(FileCall::Exists, 1);
    EXPECT_TRUE(Saved().find("[Profiles]") != std::string::npos) << "a file that can't be seen";
}

// The program dies at every single change of a file that a save makes.
TEST_F(ConfigTest, SaveIsAllOrNothingWhereverTheProgramDies) {
    const std::string before =
        "[GeneralSetup]\r\nAutoQuit=1\r\nClickThreshold=400\r\n[Aircrafts]\r\nA=B\r\n";
    Load(before);
    setup.AutoQuit = false;
    setup.MainFormTop = 300;
    const std::string after = Saved();
    const int changes = machine.files.ChangeCount();
    ASSERT_GT(changes, 5);
    for (const LastChange last : {LastChange::Undone, LastChange::Half}) {
        for (int died = 0; died < changes; ++died) {
            machine.files.Put(kPath, before);
            machine.files.CutPowerAfter(died, last);
            try {
                ADD_FAILURE() << "the power stayed on: " << setup.SaveSetup().Problem();
            } catch (const PowerCut&) {
            }
            const bool half = machine.files.Look(kPath + ".new").has_value();
            EXPECT_TRUE(died > 0 || half == (last == LastChange::Half)) << "of the first change";
            machine.files.RestorePower();
            const auto found = machine.files.Look(kPath);
            ASSERT_TRUE(found == before || found == after) << "died at change " << died;
            EXPECT_EQ(Saved(), after) << "what is left of the copy is in nobody's way";
        }
    }
}

// A virus scanner or a backup has the file at the start, and lets it go later.
TEST_F(ConfigTest, OptionsOfAHeldFileAreNeitherTakenForDefaultsNorLost) {
    machine.registry.WriteValue(kCurrentUser, kRun, "ORVO", 1, "C:\\Orvo\\Orvo.exe");
    const std::string before =
        "[GeneralSetup]\r\nAutoStart=1\r\nAutoQuit=1\r\nMainFormTop=15\r\nMainFormLeft=15\r\n";
    machine.files.Put(kPath, before);
    machine.files.Hold(kPath);
    EXPECT_FALSE(setup.LoadSetup());
    setup.MainFormTop = 300;
    setup.ClickThreshold = 250;
    EXPECT_EQ(Saved(false), before);
    EXPECT_NE(machine.registry.Look(kCurrentUser, kRun, "ORVO"), nullptr);
    machine.files.Hold("");
    const std::string saved = Saved();
    EXPECT_NE(machine.registry.Look(kCurrentUser, kRun, "ORVO"), nullptr);
    EXPECT_TRUE(setup.AutoQuit && setup.AutoStart) << "what the file says";
    for (const char* line : {"AutoStart=1", "AutoQuit=1", "MainFormLeft=15"}) {
        EXPECT_NE(saved.find(line), std::string::npos) << line;
    }
    for (const char* line : {"MainFormTop=300", "ClickThreshold=250"}) {
        EXPECT_NE(saved.find(line), std::string::npos) << line << ": what this run has changed";
    }
    setup.AutoQuit = false;
    machine.files.Hold(kPath);
    EXPECT_FALSE(setup.LoadSetup());
    EXPECT_TRUE(setup.AutoQuit) << "a cancelled change goes back to what was read before";
}

TEST_F(ConfigTest, SaveWaitsAMomentForAHeldFile) {
    Load("[GeneralSetup]\r\nAutoQuit=1\r\n");
    setup.MainFormTop = 300;
    machine.files.Hold(kPath, 3);
    EXPECT_TRUE(SavedHas("MainFormTop=300"));
    ProfileStore profiles(machine.ini, machine.files, machine.clock, "C:\\Orvo");
    machine.files.Put("C:\\Orvo\\Default.ini", "[Common]\r\nOther=1\r\n");
    machine.files.Hold("C:\\Orvo\\Default.ini", 3);
    EXPECT_TRUE(profiles.Files.Save("Default", "Common",
                                    [](IniSection& keys) { return keys.Set("A", "1"); }));
    machine.files.Hold(kPath);
    const uint64_t before = machine.clock.Elapsed();
    EXPECT_FALSE(setup.SaveSetup());
    EXPECT_EQ(machine.clock.Elapsed() - before, kSavePatienceMs);
}

TEST_F(ConfigTest, WhateverHasTheNameOfTheCopyBlocksNoSave) {
    Load("[GeneralSetup]\r\nAutoQuit=1\r\n");
    machine.files.Put(kPath + ".new", "left over");
    machine.files.Hold(kPath + ".new");
    EXPECT_TRUE(SavedHas("AutoQuit=1"));
    EXPECT_EQ(machine.files.Paths(),
              (std::vector<std::string>{"c:\\orvo\\orvo.ini", "c:\\orvo\\orvo.ini.new"}));
    machine.files.Hold("");
    EXPECT_TRUE(SavedHas("AutoQuit=1"));
    EXPECT_EQ(machine.files.Paths().size(), 1U) << "the next save cleans up";
}

TEST_F(ConfigTest, FilesThatAnEditorSavedInAnotherCodingAreRead) {
    const std::string text = "[GeneralSetup]\r\nAutoQuit=1\r\n";
    for (const char* marks : {"\xEF\xBB\xBF", "\xEF\xBB\xBF\xEF\xBB\xBF"}) {
        Load(marks + text);
        EXPECT_TRUE(setup.AutoQuit);
        EXPECT_TRUE(SavedHas("AutoQuit=1")) << "not in a second section";
    }
    std::string wide = "\xFF\xFE";
    for (const char each : text) wide.append({each, '\0'});
    setup.AutoQuit = false;
    Load(wide);
    EXPECT_TRUE(setup.AutoQuit);
}

TEST_F(ConfigTest, ClickThresholdBelowOneWorksAsOneAndStaysInTheFile) {
    for (const char* line : {"ClickThreshold=0", "ClickThreshold=-500"}) {
        Load("[GeneralSetup]\r\n" + std::string(line) + "\r\n");
        ButtonPress press(machine.clock, machine.loop, setup.ClickThreshold);
        press.Down(1, 1000);
        EXPECT_TRUE(press.Up(1000)) << line;
        EXPECT_FALSE(press.Up(1001)) << line;
        EXPECT_TRUE(SavedHas(line));
    }
}

}  // namespace
