#include "config/ProfileStore.h"

#include <algorithm>
#include <span>

#include "base/Text.h"
#include "config/IniKey.h"
#include "config/IniSave.h"

namespace {

constexpr const char* kProfiles = "Profiles";
constexpr const char* kAircrafts = "Aircrafts";

// From this length on, a listing of keys may have been cut.
constexpr size_t kFullListing = 8190;

constexpr int kMostSections = 100;

// Appends what `ini` lists of its section; true if there may be more than it could list.
bool ReadListing(cInifile& ini, std::vector<std::pair<std::string, std::string>>& entries) {
    std::vector<std::string> keys;
    int32_t count = 0;
    ini.EnumerateCurrentSection(keys, count);
    for (const std::string& key : keys) {
        ini.Key = key;
        entries.emplace_back(key, ini.Value());
    }
    return count > 0 && ini.INISection().size() >= kFullListing;
}

bool DeleteKeys(cInifile& ini, std::span<const std::pair<std::string, std::string>> entries) {
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
      path_(programFolder_ + "\\Orvo.ini") {}

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
    Entries entries;
    const bool whole = ReadSection(kProfiles, entries);
    for (const auto& [name, value] : entries) {
        if (ProfileNameFree(name)) profileNames_.insert(profileNames_.end() - 1, name);
    }
    return whole;
}

bool ProfileStore::ReadAircraftList() {
    Entries entries;
    const bool whole = ReadSection(kAircrafts, entries);
    for (const auto& [key, profile] : entries) AddAircraft(FromIniKey(key), profile);
    return whole;
}

void ProfileStore::SaveProfileList() {
    if (!profilesWhole_) profilesWhole_ = ReadProfileList();
    if (!profilesWhole_) return;
    Entries entries;
    for (const std::string& name : profileNames_) {
        if (name != kDefault) entries.emplace_back(name, " ");
    }
    RewriteSection(kProfiles, entries);
}

void ProfileStore::SaveAircraftList() {
    if (!aircraftsWhole_) aircraftsWhole_ = ReadAircraftList();
    if (!aircraftsWhole_) return;
    Entries entries;
    for (const Aircraft& each : aircrafts_) {
        entries.emplace_back(ToIniKey(each.title), each.profile);
    }
    RewriteSection(kAircrafts, entries);
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

// One listing holds only so many keys. Where there are more, those seen are taken out of a copy, so
// that the next listing shows others.
bool ProfileStore::ReadSection(const char* section, Entries& entries) const {
    const std::string copy = path_ + ".new";
    cInifile ini(ini_);
    ini.Path = path_;
    ini.Section = section;
    bool whole = true;
    for (size_t seen = 0; whole && ReadListing(ini, entries); seen = entries.size()) {
        whole = ini.Path == copy || files_.Copy(path_, copy);
        ini.Path = copy;
        whole = whole && DeleteKeys(ini, std::span(entries).subspan(seen));
    }
    if (ini.Path == copy) files_.Delete(copy);
    return whole;
}

// Leaves a file alone that says all this already.
void ProfileStore::RewriteSection(const char* section, const Entries& entries) {
    const auto same = [](const Entries::value_type& a, const Entries::value_type& b) {
        return a.first == b.first && Trim(a.second) == Trim(b.second);
    };
    Entries there;
    if (ReadSection(section, there) && std::ranges::equal(there, entries, same)) return;
    SaveIni(ini_, files_, path_, [&](cInifile& ini) {
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
}
