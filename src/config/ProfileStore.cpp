#include "config/ProfileStore.h"

#include <algorithm>
#include <utility>

#include "base/Text.h"
#include "config/IniKey.h"
#include "config/ProfileName.h"

namespace {

constexpr const char* kProfiles = "Profiles";
constexpr const char* kNoValue = " ";  // a profile's key says all
constexpr const char* kAircrafts = "Aircrafts";

}  // namespace

ProfileStore::ProfileStore(IniService& ini, FilePort& files, Clock& clock,
                           const std::string& programFolder)
    : Files(ini, files, clock, programFolder),
      files_(ini, files),
      path_(programFolder + "\\Orvo.ini") {}

void ProfileStore::LoadProfileList() {
    profileNames_.assign(1, kDefault);
    profilesWhole_ = ReadProfileList();
}

void ProfileStore::LoadAircraftList() {
    aircrafts_.clear();
    aircraftPlaces_.clear();
    aircraftsWhole_ = ReadAircraftList();
}

// Adds what isn't known yet, before "Default".
bool ProfileStore::ReadProfileList() {
    const auto text = files_.Read(path_);
    if (!text) return false;
    profilesInFile_.clear();
    unusableNames_.clear();
    for (const std::string& name : text->Keys(kProfiles)) {
        profilesInFile_.emplace_back(name, kNoValue);
        if (!ProfileNameValid(name)) {
            unusableNames_.push_back(name);
        } else if (ProfileNameFree(name)) {
            profileNames_.insert(profileNames_.end() - 1, name);
        }
    }
    return true;
}

// What the file says counts before what has been bound meanwhile.
bool ProfileStore::ReadAircraftList() {
    const auto text = files_.Read(path_);
    if (!text) return false;
    aircraftsInFile_ = text->Entries(kAircrafts);
    const std::vector<Aircraft> bound = std::exchange(aircrafts_, {});
    aircraftPlaces_.clear();
    for (const auto& [key, profile] : aircraftsInFile_) AddAircraft(FromIniKey(key), profile);
    for (const Aircraft& each : bound) AddAircraft(each.title, each.profile);
    return true;
}

bool ProfileStore::ReadWhatIsMissing() {
    if (!profilesWhole_) profilesWhole_ = ReadProfileList();
    if (!aircraftsWhole_) aircraftsWhole_ = ReadAircraftList();
    return ListsAreRead();
}

SaveResult ProfileStore::SaveProfileList() {
    if (!profilesWhole_) return SaveResult::Unread(path_);
    IniEntries entries;
    for (const std::string& name : profileNames_) {
        if (name != kDefault) entries.emplace_back(name, kNoValue);
    }
    for (const std::string& name : unusableNames_) entries.emplace_back(name, kNoValue);
    return SaveList(kProfiles, std::move(entries), profilesInFile_);
}

SaveResult ProfileStore::SaveAircraftList() {
    if (!aircraftsWhole_) return SaveResult::Unread(path_);
    IniEntries entries;
    for (const Aircraft& each : aircrafts_) {
        entries.emplace_back(ToIniKey(each.title), each.profile);
    }
    return SaveList(kAircrafts, std::move(entries), aircraftsInFile_);
}

// `inFile` is what the file says as far as we know; it is left alone when that is all.
SaveResult ProfileStore::SaveList(const char* section, IniEntries entries, IniEntries& inFile) {
    if (entries == inFile) return {};
    const bool saved = files_.SaveSections(path_, {{section, entries}});
    if (saved) inFile = std::move(entries);
    return files_.Result(saved, path_);
}

const ProfileStore::Aircraft* ProfileStore::Find(std::string_view title) const {
    const auto found = aircraftPlaces_.find(ToLower(title));
    return found == aircraftPlaces_.end() ? nullptr : &aircrafts_[found->second];
}

bool ProfileStore::AircraftKnown(std::string_view title) const { return Find(title) != nullptr; }

std::string ProfileStore::ProfileOfAircraft(std::string_view title) const {
    const Aircraft* aircraft = Find(title);
    return aircraft ? aircraft->profile : std::string();
}

std::string ProfileStore::ProfileToFly(std::string_view title) const {
    std::string profile = ProfileOfAircraft(title);
    return profile.empty() || ProfileIndex(profile) != -1 ? profile : kDefault;
}

void ProfileStore::AddAircraft(std::string_view title, std::string_view profile) {
    if (title.empty() || !aircraftPlaces_.try_emplace(ToLower(title), aircrafts_.size()).second) {
        return;
    }
    aircrafts_.push_back({std::string(title), std::string(profile)});
}

void ProfileStore::RebindAircraft(std::string_view title, std::string_view profile) {
    const auto found = aircraftPlaces_.find(ToLower(title));
    if (found != aircraftPlaces_.end()) aircrafts_[found->second].profile = profile;
}

std::vector<std::string> ProfileStore::AircraftNames() const {
    std::vector<std::string> titles;
    for (const Aircraft& each : aircrafts_) titles.push_back(each.title);
    return titles;
}

bool ProfileStore::HasAircraft(std::string_view profile) const {
    return std::ranges::any_of(
        aircrafts_, [profile](const Aircraft& each) { return EqualNoCase(each.profile, profile); });
}

bool ProfileStore::ProfileNameFree(std::string_view name) const {
    return ProfileIndex(name) == -1 && !ProfileNameReserved(name);
}

int32_t ProfileStore::ProfileIndex(std::string_view name) const {
    const auto found = std::ranges::find_if(
        profileNames_, [name](const std::string& each) { return EqualNoCase(each, name); });
    if (found == profileNames_.end()) return -1;
    return static_cast<int32_t>(found - profileNames_.begin()) + 1;
}

void ProfileStore::AddProfile(const std::string& name) {
    if (name.empty() || !ProfileNameValid(name) || !ProfileNameFree(name)) return;
    profileNames_.insert(profileNames_.end() - 1, name);
}

// Its file is the last to go: whoever finds the name in the list finds the file as well.
SaveResult ProfileStore::DeleteProfile(const std::string& name) {
    if (EqualNoCase(name, kDefault) || ProfileIndex(name) == -1) return {};
    const std::vector<std::string> before = profileNames_;
    std::erase_if(profileNames_,
                  [&name](const std::string& each) { return EqualNoCase(each, name); });
    SaveResult saved = SaveProfileList();
    if (saved) {
        Files.Delete(name);
    } else {
        profileNames_ = before;
    }
    return saved;
}

std::optional<IniEntries> ProfileStore::ReadProfile(const std::string& section) {
    if (!ProfileInUse()) return std::nullopt;
    std::optional<IniText> own;
    const bool isRead = reading_ && reading_->profile == CurrentProfile;
    if (!isRead) own = Files.Read(CurrentProfile);
    const std::optional<IniText>& text = isRead ? reading_->text : own;
    if (text) return text->Entries(section);
    profileMissed_ = true;
    return std::nullopt;
}

ProfileReading::ProfileReading(ProfileStore& profiles)
    : profiles_(profiles), before_(std::move(profiles.reading_)) {
    profiles_.reading_ = ProfileStore::ReadText{profiles_.CurrentProfile,
                                                profiles_.Files.Read(profiles_.CurrentProfile)};
    profiles_.profileMissed_ = false;
}

ProfileReading::~ProfileReading() { profiles_.reading_ = std::move(before_); }
