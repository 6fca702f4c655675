// Hand-made lists and bindings: whatever is in them, they load, and a save, an import and a load
// give the same.
#include <cstdlib>
#include <string>

#include "config/IniKey.h"
#include "config/ProfileImport.h"
#include "config/ProfileName.h"
#include "panels/bip/cBIPPanelActionHolder.h"
#include "panels/multi/cMultiPanelActionsHolder.h"
#include "panels/radio/cRadioPanelActionsHolder.h"
#include "panels/switch/cSwitchPanelActionsHolder.h"
#include "platform/virtual/VirtualPlatform.h"

namespace {

constexpr size_t kLongestBindings = 6000;
constexpr size_t kLongestTitle = 255;
constexpr size_t kLongestLists = 20000;

void Require(bool holds) {
    if (!holds) std::abort();
}

ProfileStore Started(VirtualPlatform& machine) {
    ProfileStore profiles(machine.ini, machine.files, machine.clock, "C:\\Orvo");
    profiles.LoadProfileList();
    profiles.LoadAircraftList();
    return profiles;
}

void CheckLists(const std::string& text) {
    VirtualPlatform machine;
    machine.files.Put("C:\\Orvo\\Orvo.ini", "[Aircrafts]\n" + text);
    std::vector<std::string> keys;
    int32_t count = 0;
    cInifile ini(machine.ini);
    ini.Path = "C:\\Orvo\\Orvo.ini";
    ini.Section = "Aircrafts";
    ini.EnumerateCurrentSection(keys, count);

    ProfileStore profiles = Started(machine);
    const std::string added = '\1' + text.substr(0, kLongestTitle);
    profiles.AddAircraft(added, "Default");
    Require(profiles.SaveProfileList() && profiles.SaveAircraftList());
    const ProfileStore again = Started(machine);
    Require(again.ProfileNames() == profiles.ProfileNames());
    Require(again.ProfileOfAircraft(added) == "Default");
    for (const std::string& key : keys) {
        const std::string title = FromIniKey(key);
        const std::string profile = profiles.ProfileOfAircraft(title);
        Require(again.AircraftKnown(title));
        // What is no name of a profile may have quotes, which the service takes off.
        if (ProfileNameValid(profile)) {
            Require(again.ProfileOfAircraft(title) == profile);
        }
    }
}

void CheckImport(const std::string& text) {
    VirtualPlatform machine;
    machine.files.Put("C:\\Orvo\\Source.ini", text);
    machine.files.Put("C:\\Orvo\\Target.ini", "[Old]\nk=1\n");
    const ProfileFiles files(machine.ini, machine.files, machine.clock, "C:\\Orvo");
    const ProfileImport import(files, "Source", "Target");
    const auto sections = import.Sections().value();
    Require(bool(import.Copy(sections)));
    for (const std::string& section : sections) {
        Require(files.Read("Target")->Written(section) == files.Read("Source")->Written(section));
    }
}

// What can't be selected can't be loaded.
void CheckTiles(const cBIPPanelActionHolder& loaded, const cBIPPanelActionHolder& again) {
    for (int16_t tile = 0; tile < kBIPTiles; ++tile) {
        const int32_t function = loaded.GetTileFunction(tile);
        Require(function == 0 || !loaded.GetName(tile).empty());
        Require(loaded.hasColorSel(tile) == (loaded.GetColor(tile) != LampColor::kOff));
        Require(loaded.GetThreshold(tile) >= 0 && loaded.GetThreshold(tile) <= 100);
        Require(loaded.hasThresholdSel(tile) || loaded.GetThreshold(tile) == 0);
        Require(again.GetTileFunction(tile) == function);
        Require(again.GetColor(tile) == loaded.GetColor(tile));
        Require(again.GetThreshold(tile) == loaded.GetThreshold(tile));
    }
}

// Two holders say the same when they make the same file.
template <class Holder>
void CheckBindings(const std::string& section, const std::string& text,
                   void (*check)(const Holder& loaded, const Holder& again) = nullptr) {
    VirtualPlatform machine;
    machine.files.Put("C:\\Orvo\\Default.ini", section + text);
    ProfileStore profiles(machine.ini, machine.files, machine.clock, "C:\\Orvo");
    Holder holder(profiles), again(profiles);
    holder.Index = again.Index = 1;
    holder.LoadSetup();
    Require(bool(holder.SaveSetup()));
    again.LoadSetup();
    if (check) check(holder, again);
    profiles.CurrentProfile = "Loaded";
    Require(bool(holder.SaveSetup()));
    profiles.CurrentProfile = "Again";
    Require(bool(again.SaveSetup()));
    Require(machine.files.Look("C:\\Orvo\\Loaded.ini") ==
            machine.files.Look("C:\\Orvo\\Again.ini"));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const std::string text(data, data + size);
    Require(FromIniKey(ToIniKey(text)) == text);
    if (size <= kLongestLists) CheckLists(text);
    if (size > kLongestBindings) return 0;
    CheckImport(text);
    CheckBindings<cMultiPanelActionsHolder>("[MultiPanel1]\n", text);
    CheckBindings<cRadioPanelActionsHolder>("[RadioPanel1]\n", text);
    CheckBindings<cSwitchPanelActionsHolder>("[SwitchPanel1]\n", text);
    // Else hardly a tile would have a function.
    std::string tiles = "[BIPPanel1]\n";
    if (size >= 2) {
        tiles.append("T").append(std::to_string(data[0] % 32)).append("=");
        tiles.append(TileFunctions[data[1] % kTileFunctions].Key.Text()).append(",");
    }
    CheckBindings<cBIPPanelActionHolder>(tiles, text.substr(size >= 2 ? 2 : 0), CheckTiles);
    return 0;
}
