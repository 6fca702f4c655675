// A hand-made Orvo.ini: whatever is in it, it loads, a save and a load give the same, a save leaves
// alone what isn't its own, and what is converted stays whole.
#include <cstdint>
#include <string>

#include "base/Text.h"
#include "bench/fuzz/Require.h"
#include "config/IniKey.h"
#include "config/OldConfiguration.h"
#include "config/ProfileName.h"
#include "config/ProfileStore.h"
#include "config/cSetupHolder.h"
#include "platform/virtual/VirtualPlatform.h"
#include "toolkit/HeadlessUi.h"

namespace {

constexpr const char* kFolder = "C:\\Orvo";
constexpr const char* kFile = "C:\\Orvo\\Orvo.ini";
constexpr size_t kLongestTitle = 255;
constexpr size_t kLongestValue = 254;

cSetupHolder Setup(VirtualPlatform& machine) {
    return {machine.ini, machine.files, machine.clock, machine.registry, kFolder};
}

void RequireOthers(const IniText& before, const IniText& after, const std::string& own) {
    for (const std::string& section : before.Sections()) {
        if (EqualNoCase(section, own)) continue;
        Require(after.Written(section) == before.Written(section));
    }
}

// Two loads say the same when they make the same file.
void CheckOptions(const std::string& text) {
    VirtualPlatform machine;
    machine.files.Put(kFile, text);
    cSetupHolder setup = Setup(machine), again = Setup(machine);
    Require(setup.LoadSetup() && setup.SaveSetup());
    const std::string saved = machine.files.Look(kFile).value();
    RequireOthers(IniText(text), IniText(saved), "GeneralSetup");
    Require(again.LoadSetup() && again.SaveSetup());
    Require(machine.files.Look(kFile) == saved);
    Require(again.AutoQuit == setup.AutoQuit && again.ClickThreshold == setup.ClickThreshold &&
            again.OrvoAffinity == setup.OrvoAffinity && again.MainFormLeft == setup.MainFormLeft);
}

ProfileStore Started(VirtualPlatform& machine) {
    ProfileStore profiles(machine.ini, machine.files, machine.clock, kFolder);
    profiles.LoadProfileList();
    profiles.LoadAircraftList();
    return profiles;
}

void CheckLists(const std::string& text) {
    VirtualPlatform machine;
    machine.files.Put(kFile, text);
    const std::vector<std::string> keys = IniText(text).Keys("Aircrafts");
    ProfileStore profiles = Started(machine);
    const std::string added = '\1' + text.substr(0, kLongestTitle);
    profiles.AddAircraft(added, "Default");
    Require(profiles.SaveProfileList() && profiles.SaveAircraftList());
    const ProfileStore again = Started(machine);
    Require(again.ProfileNames() == profiles.ProfileNames());
    Require(again.ProfileOfAircraft(added) == "Default");
    for (const std::string& key : keys) {
        const std::string title = FromIniKey(key);
        if (title.empty()) continue;
        const std::string profile = profiles.ProfileOfAircraft(title);
        Require(again.AircraftKnown(title));
        // What is no name of a profile may have quotes, which the service takes off.
        if (ProfileNameValid(profile)) Require(again.ProfileOfAircraft(title) == profile);
    }
}

// All ways to ask the service for a value give the same.
void CheckService(const std::string& text) {
    VirtualPlatform machine;
    machine.files.Put(kFile, text);
    const IniText parsed(text);
    cInifile ini(machine.ini);
    ini.Path = kFile;
    for (const std::string& section : parsed.Sections()) {
        for (const auto& [key, value] : parsed.Entries(section)) {
            ini.Section = section;
            ini.Key = key;
            Require(ini.Value() == value.substr(0, kLongestValue));
        }
    }
}

void CheckConversion(const std::string& text, bool wanted) {
    VirtualPlatform machine;
    HeadlessUi ui;
    const auto answer = wanted ? MsgBoxResult::Ok : MsgBoxResult::Cancel;
    ui.Answer = [answer](const MsgBoxRequest&) { return answer; };
    machine.files.Put(kFile, text);
    machine.files.Put("C:\\Orvo\\Default.ini", "[Mine]");
    Patience patience(machine.clock, 0);
    const bool goesOn = ConvertOldConfiguration(machine.ini, machine.files, ui, kFolder, patience);
    Require(goesOn == (ui.Boxes.empty() || wanted));
    const bool converted = goesOn && !ui.Boxes.empty();
    Require(machine.files.Look(converted ? "C:\\Orvo\\Default.ini" : kFile) == text);
    const char* const mine = converted ? "C:\\Orvo\\Default.1.ini" : "C:\\Orvo\\Default.ini";
    Require(machine.files.Look(mine) == "[Mine]");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const std::string text(data, data + size);
    Require(FromIniKey(ToIniKey(text)) == text);
    CheckConversion(text, size % 2 == 0);
    // The virtual service doesn't know files of 16-bit text, by the mark at their beginning.
    if (text.find("\xFF\xFE") <= 3) return 0;
    CheckOptions(text);
    CheckLists(text);
    CheckService(text);
    return 0;
}
