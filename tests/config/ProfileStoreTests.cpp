#include <gtest/gtest.h>

#include "config/OldConfiguration.h"
#include "config/ProfileImport.h"
#include "config/ProfileName.h"
#include "config/ProfileStore.h"
#include "platform/virtual/VirtualPlatform.h"
#include "toolkit/HeadlessUi.h"

namespace {

using Names = std::vector<std::string>;
const std::string kPath = "C:\\Orvo\\Orvo.ini";

struct ProfileStoreTest : testing::Test {
    VirtualPlatform machine;

    // As a program that starts with what is there, or with `content`.
    ProfileStore Started(const std::string& content = "") {
        if (!content.empty()) machine.files.Put(kPath, content);
        ProfileStore store(machine.ini, machine.files, machine.clock, "C:\\Orvo");
        store.LoadProfileList();
        store.LoadAircraftList();
        return store;
    }
    std::string Saved(ProfileStore& store, bool works = true) {
        EXPECT_EQ(store.SaveProfileList() && store.SaveAircraftList(), works);
        return machine.files.Look(kPath).value_or("no file");
    }
};

TEST_F(ProfileStoreTest, ListsKeepTheirOrderAndTheRestOfTheFile) {
    ProfileStore empty = Started();
    EXPECT_EQ(empty.ProfileNames(), Names{"Default"});
    EXPECT_EQ(Saved(empty), "no file");
    ProfileStore store = Started(
        "[Profiles]\r\nB= \r\ndefault= \r\nA=x\r\nb= \r\n[Aircrafts]\r\nBaron=A\r\nBARON=B\r\n"
        "Cessna= b \r\n[Other]\r\nx=1\r\n");
    EXPECT_EQ(store.ProfileNames(), (Names{"B", "A", "Default"}));
    EXPECT_EQ(store.ProfileIndex("a"), 2);
    EXPECT_TRUE(store.ProfileNameFree("C") && ProfileNameValid("aZ09"));
    for (const char* bad : {"a b", "..\\a", "\xE4"}) EXPECT_FALSE(ProfileNameValid(bad));
    EXPECT_EQ(store.ProfileOfAircraft("baron"), "A") << "the first of two that differ in case";
    EXPECT_EQ(store.ProfileOfAircraft("none"), "");
    store.AddAircraft("CESSNA", "A");
    store.AddAircraft("Piper [2]; new", "Default");
    EXPECT_EQ(Saved(store),
              "[Other]\r\nx=1\r\n[Profiles]\r\nB= \r\nA= \r\n"
              "[Aircrafts]\r\nBaron=A\r\nCessna=b\r\nPiper [2]; new=Default\r\n");
    const int changes = machine.files.ChangeCount();
    Saved(store);
    EXPECT_EQ(machine.files.ChangeCount(), changes) << "the file says it already";
}

TEST_F(ProfileStoreTest, AnyTitleAndAnyNumberOfThemComeBack) {
    Names titles = {"a=b", "[Baron] 58", "[",   ";x",  "  two  ",           " ",
                    "%",   "\xA0x\xA0",  "%41", "%G1", "a\tb\x1A\r\nc\x7F", "'q'",
                    "a]b", "100%",       "A"};
    titles.push_back(std::string("nul\0x", 5));
    for (int i = 0; i < 300; ++i) titles.push_back(std::string(60, 't') + std::to_string(i));
    Started("[Aircrafts]\r\n100% by %48and=Hand\r\n");
    for (int saves = 0; saves < 2; ++saves) {
        ProfileStore store = Started();
        EXPECT_EQ(store.ProfileOfAircraft("100% by Hand"), "Hand");
        titles.push_back("more" + std::to_string(saves));
        for (size_t i = 0; i < titles.size(); ++i) store.AddAircraft(titles[i], std::to_string(i));
        Saved(store);
        const ProfileStore again = Started();
        for (size_t i = 0; i < titles.size(); ++i) {
            ASSERT_EQ(again.ProfileOfAircraft(titles[i]), std::to_string(i)) << titles[i];
        }
    }
    EXPECT_EQ(machine.files.Paths().size(), 1U) << "no copy is left";
}

// The power goes at every single change of a file; the list is longer than one listing.
TEST_F(ProfileStoreTest, SavesArriveWholeOrNotAtAll) {
    std::string before = "[Aircrafts]\r\n";
    for (const char* last : {"1", "2", "3"}) before += std::string(4000, 'l') + last + "=A\r\n";
    const std::string after = before + "New=B\r\n";
    for (const LastChange last : {LastChange::Undone, LastChange::Half}) {
        bool whole = false;
        for (int changes = 0; !whole; ++changes) {
            ProfileStore store = Started(before);
            store.AddAircraft("New", "B");
            machine.files.CutPowerAfter(changes, last);
            try {
                whole = Saved(store) == after && changes > 1;
                ASSERT_TRUE(whole);
            } catch (const PowerCut&) {
            }
            machine.files.RestorePower();
            const auto found = machine.files.Look(kPath);
            ASSERT_TRUE(whole || found == before || found == after) << "at change " << changes;
        }
    }
    const std::string names = "[Profiles]\r\nJet= \r\n";
    machine.files.Put(kPath, names + before);
    machine.files.Hold(kPath);
    ProfileStore store = Started();
    store.AddAircraft(std::string(4000, 'l') + "3", "Default");
    store.AddAircraft("New", "B");
    EXPECT_FALSE(store.ReadWhatIsMissing());
    machine.files.Hold("");
    EXPECT_EQ(Saved(store, false), names + before) << "not before all of it has been read";
    EXPECT_TRUE(store.ReadWhatIsMissing());
    EXPECT_EQ(Saved(store), names + after) << "what the file says counts first";
}

// The power goes at every single change of a file: a profile is made, deleted, imported into.
TEST_F(ProfileStoreTest, ProfilesChangeWholeOrNotAtAll) {
    const std::string source = "[A]\r\nk=\"1 \"\r\nK=2\r\n[B]\r\n[C]\r\nx=1\r\n";
    // Orvo.ini, and the files of Jet, Prop and Default.
    const Names before = {"[Profiles]\r\nJet= \r\nProp= \r\n", source,
                          "[C]\r\ny=1\r\n[D]\r\nz=1\r\n[A]\r\nold=1\r\n", "none"};
    const struct {
        std::function<SaveResult(ProfileStore&)> act;
        Names after;
    } cases[] = {
        {[](ProfileStore& store) {
             store.AddProfile("New");
             return store.SaveProfileList();
         },
         {"[Profiles]\r\nJet= \r\nProp= \r\nNew= \r\n", source, before[2], "none"}},
        {[](ProfileStore& store) { return store.DeleteProfile("jet"); },
         {"[Profiles]\r\nProp= \r\n", "none", before[2], "none"}},
        {[](ProfileStore& store) {
             return ProfileImport(store.Files, "Jet", "Prop").Copy({"B", "A", "C"});
         },
         {before[0], source, "[D]\r\nz=1\r\n[A]\r\nk=\"1 \"\r\n[C]\r\nx=1\r\n", "none"}},
        {[](ProfileStore& store) {
             return ProfileImport(store.Files, "Jet", "Default").Copy({"A"});
         },
         {before[0], source, before[2], "[A]\r\nk=\"1 \"\r\n"}},
    };
    for (const auto& [act, after] : cases) {
        // A profile that is deleted leaves the list before its file goes.
        Names between = before;
        between[0] = after[0];
        for (const LastChange last : {LastChange::Undone, LastChange::Half}) {
            bool done = false;
            for (int changes = 0; !done; ++changes) {
                machine.files.Put("C:\\Orvo\\Jet.ini", before[1]);
                machine.files.Put("C:\\Orvo\\Prop.ini", before[2]);
                machine.files.Delete("C:\\Orvo\\Default.ini");
                ProfileStore store = Started(before[0]);
                machine.files.CutPowerAfter(changes, last);
                try {
                    EXPECT_TRUE(act(store));
                    done = true;
                } catch (const PowerCut&) {
                }
                machine.files.RestorePower();
                Names found;
                for (const char* name : {"Orvo", "Jet", "Prop", "Default"}) {
                    const std::string path = "C:\\Orvo\\" + std::string(name) + ".ini";
                    found.push_back(machine.files.Look(path).value_or("none"));
                }
                ASSERT_TRUE(found == after || (!done && (found == before || found == between)))
                    << "at change " << changes << ": " << testing::PrintToString(found);
            }
        }
    }
}

// Each pass over a file of a thousand lines costs time while the panels fly.
TEST_F(ProfileStoreTest, LongListsTakeAFewPassesOverTheFile) {
    std::string text = "[Aircrafts]\r\n";
    for (int i = 0; i < 1000; ++i) text += "Livery " + std::to_string(i) + "=Jet\r\n";
    ProfileStore store = Started(text);
    EXPECT_LE(machine.files.ReadCount(), 2);
    EXPECT_EQ(store.ProfileOfAircraft("LIVERY 999"), "Jet");
    store.AddAircraft("One more", "Default");
    EXPECT_EQ(Saved(store), text + "One more=Default\r\n");
    EXPECT_LE(machine.files.ReadCount() + machine.files.ChangeCount(), 6);
}

TEST_F(ProfileStoreTest, TitlesBeyondAsciiAreWrittenByTheirNumbers) {
    ProfileStore store = Started("[Aircrafts]\r\nCaf\xE9=Jet\r\n");
    EXPECT_EQ(store.ProfileOfAircraft("Caf\xE9"), "Jet") << "as an earlier version wrote it";
    store.AddAircraft("\x80\xFF", "Default");
    EXPECT_EQ(Saved(store), "[Aircrafts]\r\nCaf%E9=Jet\r\n%80%FF=Default\r\n");
    EXPECT_EQ(Started().ProfileOfAircraft("\x80\xFF"), "Default");
}

TEST_F(ProfileStoreTest, NamesThatLeadElsewhereAreNoProfiles) {
    const std::string lists =
        "[Profiles]\r\nJet= \r\n..\\x= \r\nmy jet= \r\n"
        "[Aircrafts]\r\nA=..\\x\r\nB=Gone\r\nC=jet\r\nD=\r\n";
    ProfileStore store = Started(lists);
    EXPECT_EQ(store.ProfileNames(), (Names{"Jet", "Default"}));
    for (const char* title : {"A", "B"}) EXPECT_EQ(store.ProfileToFly(title), "Default");
    EXPECT_EQ(store.ProfileToFly("C"), "jet");
    EXPECT_EQ(store.ProfileToFly("D"), "") << "the user gave none";
    store.AddAircraft("E", "Jet");
    EXPECT_EQ(Saved(store), lists + "E=Jet\r\n") << "the file stays as it is";
    machine.files.Put("C:\\x.ini", "[S]\r\nk=1\r\n");
    ProfileStore none = Started("[Profiles]\r\nOrvo= \r\n[Aircrafts]\r\nA=Jet\r\n");
    EXPECT_EQ(Saved(none), "[Aircrafts]\r\nA=Jet\r\n") << "no name, no section";
    for (const char* name : {"..\\x", "C:\\x", "\\..\\x", "Orvo"}) {
        store.CurrentProfile = name;
        EXPECT_EQ(store.ReadProfile("S"), IniEntries()) << name;
        EXPECT_FALSE(store.Files.Save(store.CurrentProfile, "S",
                                      [](IniSection& keys) { return keys.Set("k", "2"); }));
    }
    EXPECT_EQ(machine.files.Paths(), (Names{"c:\\orvo\\orvo.ini", "c:\\x.ini"}));
}

struct ShakyFiles : VirtualFiles {
    int untilRefused = 0;
    bool Rename(const std::string& from, const std::string& to) override {
        return --untilRefused != 0 && VirtualFiles::Rename(from, to);
    }
};

TEST(OldConfigurationTest, BecomesTheDefaultProfileAndNothingIsLost) {
    const Names names = {"Orvo", "Default", "Default.1", "Default.2", "Default.3"};
    const std::string old = "[x]\r\n[RADIOpanel1]", now = "[MultiPanel10]";
    const struct {
        Names before, after;  // empty: no file
        size_t boxes = 1;
        int refusedRename = 0;
        bool cancel = false;
    } cases[] = {{{"", "b"}, {"", "b"}, 0},
                 {{now, "b"}, {now, "b"}, 0},
                 {{old}, {"", old}},
                 {{"[multipanel1]"}, {"", "[multipanel1]"}},
                 {{"[SwitchPanel1]"}, {"", "[SwitchPanel1]"}},
                 {{old}, {old}, 1, 0, true},
                 {{old, "b", "c"}, {"", old, "c", "b"}},
                 {{old, "b", "c"}, {"", old, "c", "", "b"}, 1, 1},
                 {{old, "b", "c"}, {old, "b", "c"}, 1, 2}};
    for (const auto& [before, after, boxes, refusedRename, cancel] : cases) {
        ShakyFiles files;
        files.untilRefused = refusedRename;
        VirtualIni ini(files);
        HeadlessUi ui;
        if (cancel) ui.Answer = [](auto&) { return MsgBoxResult::Cancel; };
        const auto path = [&](size_t i) { return "C:\\Orvo\\" + names[i] + ".ini"; };
        for (size_t i = 0; i < before.size(); ++i) {
            if (!before[i].empty()) files.Put(path(i), before[i]);
        }
        VirtualClock clock;
        Patience patience(clock, 100);
        files.Refuse(FileCall::Read, 3);  // held for a moment
        EXPECT_NE(ConvertOldConfiguration(ini, files, ui, "C:\\Orvo", patience), cancel);
        EXPECT_EQ(ui.Boxes.size(), boxes);
        Names found;
        for (size_t i = 0; i < after.size(); ++i) found.push_back(files.Look(path(i)).value_or(""));
        EXPECT_EQ(found, after);
    }
}

TEST(OldConfigurationTest, HeldFileIsLeftToTheNextStart) {
    VirtualPlatform machine;
    HeadlessUi ui;
    Patience patience(machine.clock, 100);
    machine.files.Put(kPath, "[MultiPanel1]\r\n");
    machine.files.Hold(kPath);
    EXPECT_TRUE(ConvertOldConfiguration(machine.ini, machine.files, ui, "C:\\Orvo", patience));
    EXPECT_TRUE(ui.Boxes.empty());
    EXPECT_EQ(machine.clock.Elapsed(), 100U);
    EXPECT_EQ(machine.files.Paths(), Names{"c:\\orvo\\orvo.ini"});
}

}  // namespace
