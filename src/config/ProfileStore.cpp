#include "config/ProfileStore.h"

#include <algorithm>
#include <utility>

#include "base/Text.h"
#include "config/IniKey.h"
#include "config/IniSave.h"

namespace {

constexpr const char* kProfiles = "Profiles";
constexpr const char* kNoValue = " ";  // a profile's key says all
constexpr const char* kAircrafts = "Aircrafts";

constexpr const char* kGlobalFile = "Orvo";  // the file with the lists

constexpr int kMostSections = 100;

// Names whose files are no profiles: that of the lists, and those that the system keeps for
// devices.
bool IsReserved(std::string_view name) {
    for (const char* reserved : {kGlobalFile, "CON", "PRN", "AUX", "NUL"}) {
        if (EqualNoCase(name, reserved)) return true;
    }
    const std::string_view kind = name.substr(0, 3);
    return name.size() == 4 && name[3] >= '1' && name[3] <= '9' &&
           (EqualNoCase(kind, "COM") || EqualNoCase(kind, "LPT"));
}

bool DeleteKeys(cInifile& ini, const IniEntries& entries) {
    return std::ranges::all_of(entries, [&ini](const auto& entry) {
        ini.Key = entry.first;
        ini.DeleteKey();
        return ini.Success();
    });
}

}  // namespace

ProfileStore::ProfileStore(IniService& ini, FilePort& files, std::string programFolder)
    : ini_(ini),
      files_(files),
      programFolder_(std::move(programFolder)),
      path_(programFolder_ + '\\' + kGlobalFile + ".ini") {}

void ProfileStore::LoadProfileList() {
    profileNames_.assign(1, kDefault);
    profilesWhole_ = ReadProfileList();
}

void ProfileStore::LoadAircraftList() {
    aircrafts_.clear();
    aircraftsWhole_ = ReadAircraftList();
}

// Adds what isn't known yet, before "Default".
bool ProfileStore::ReadProfileList() {
    IniEntries entries;
    const bool whole = ReadSection(kProfiles, entries);
    profilesInFile_.clear();
    for (const auto& [name, value] : entries) {
        if (ProfileNameFree(name)) profileNames_.insert(profileNames_.end() - 1, name);
        profilesInFile_.emplace_back(name, kNoValue);
    }
    return whole;
}

// What the file says counts before what has been bound meanwhile.
bool ProfileStore::ReadAircraftList() {
    aircraftsInFile_.clear();
    const bool whole = ReadSection(kAircrafts, aircraftsInFile_);
    const std::vector<Aircraft> bound = std::exchange(aircrafts_, {});
    for (const auto& [key, profile] : aircraftsInFile_) AddAircraft(FromIniKey(key), profile);
    for (const Aircraft& each : bound) AddAircraft(each.title, each.profile);
    return whole;
}

bool ProfileStore::ReadWhatIsMissing() {
    const size_t names = profileNames_.size();
    if (!profilesWhole_) profilesWhole_ = ReadProfileList();
    if (!aircraftsWhole_) aircraftsWhole_ = ReadAircraftList();
    return profileNames_.size() != names;
}

void ProfileStore::SaveProfileList() {
    if (!profilesWhole_) return;
    IniEntries entries;
    for (const std::string& name : profileNames_) {
        if (name != kDefault) entries.emplace_back(name, kNoValue);
    }
    RewriteSection(kProfiles, std::move(entries), profilesInFile_);
}

void ProfileStore::SaveAircraftList() {
    if (!aircraftsWhole_) return;
    IniEntries entries;
    for (const Aircraft& each : aircrafts_) {
        entries.emplace_back(ToIniKey(each.title), each.profile);
    }
    RewriteSection(kAircrafts, std::move(entries), aircraftsInFile_);
}

const ProfileStore::Aircraft* ProfileStore::Find(std::string_view title) const {
    const auto found = std::ranges::find_if(
        aircrafts_, [title](const Aircraft& each) { return EqualNoCase(each.title, title); });
    return found == aircrafts_.end() ? nullptr : &*found;
}

bool ProfileStore::AircraftKnown(std::string_view title) const { return Find(title) != nullptr; }

std::string ProfileStore::ProfileOfAircraft(std::string_view title) const {
    const Aircraft* aircraft = Find(title);
    return aircraft ? aircraft->profile : std::string();
}

void ProfileStore::AddAircraft(std::string_view title, std::string_view profile) {
    if (title.empty() || AircraftKnown(title)) return;
    aircrafts_.push_back({std::string(title), std::string(profile)});
}

bool ProfileStore::ProfileNameFree(std::string_view name) const {
    return ProfileIndex(name) == -1 && !IsReserved(name);
}

int32_t ProfileStore::ProfileIndex(std::string_view name) const {
    const auto found = std::ranges::find_if(
        profileNames_, [name](const std::string& each) { return EqualNoCase(each, name); });
    if (found == profileNames_.end()) return -1;
    return static_cast<int32_t>(found - profileNames_.begin()) + 1;
}

bool ProfileStore::ProfileNameValid(std::string_view text) {
    return std::ranges::all_of(text, [](char c) {
        return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9');
    });
}

cInifile ProfileStore::OpenProfile(std::string section) const {
    cInifile ini(ini_);
    ini.Path = ProfilePath();
    ini.Section = std::move(section);
    return ini;
}

void ProfileStore::SaveProfile(const std::function<bool(cInifile&)>& write) {
    SaveIni(ini_, files_, ProfilePath(), write);
}

// Reads from a copy: one that could be made is whole, while the file itself may be held by another
// program at this moment. One listing holds only so many keys; where there are more, those seen are
// taken out of the copy, so that the next listing shows others.
bool ProfileStore::ReadSection(const char* section, IniEntries& entries) const {
    if (!files_.Exists(path_)) return true;
    const std::string copy = path_ + ".new";
    const bool copied = files_.Copy(path_, copy);
    cInifile ini(ini_);
    ini.Path = copied ? copy : path_;
    ini.Section = section;
    bool whole = copied;
    for (bool more = true; more;) {
        const IniEntries shown = ini.Entries();
        entries.insert(entries.end(), shown.begin(), shown.end());
        more = !ini.ListsAllKeys();
        if (!more || (!shown.empty() && copied && DeleteKeys(ini, shown))) continue;
        whole = more = false;
    }
    if (copied) files_.Delete(copy);
    return whole;
}

// `inFile` is what the file says as far as we know; it is left alone when that is all.
void ProfileStore::RewriteSection(const char* section, IniEntries entries, IniEntries& inFile) {
    if (entries == inFile) return;
    const bool saved = SaveIni(ini_, files_, path_, [&](cInifile& ini) {
        ini.Section = section;
        // Where a hand wrote the section twice, the second one comes to light when the first goes.
        for (int left = kMostSections; left > 0 && !ini.INISection().empty(); --left) {
            ini.DeleteSection();
            if (!ini.Success()) return false;
        }
        return std::ranges::all_of(entries, [&ini](const auto& entry) {
            ini.Key = entry.first;
            ini.SetValue(entry.second);
            return ini.Success();
        });
    });
    if (saved) inFile = std::move(entries);
}
