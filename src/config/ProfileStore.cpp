#include "config/ProfileStore.h"

#include <algorithm>
#include <utility>

#include "base/Text.h"
#include "config/IniKey.h"
#include "platform/Patience.h"

namespace {

constexpr const char* kProfiles = "Profiles";
constexpr const char* kNoValue = " ";  // a profile's key says all
constexpr const char* kAircrafts = "Aircrafts";

constexpr const char* kGlobalFile = "Orvo";  // the file with the lists

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

}  // namespace

ProfileStore::ProfileStore(IniService& ini, FilePort& files, Clock& clock,
                           std::string programFolder)
    : files_(ini, files),
      clock_(clock),
      programFolder_(std::move(programFolder)),
      path_(programFolder_ + '\\' + kGlobalFile + ".ini") {}

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
    const bool saved = files_.SaveSection(path_, section, entries);
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

bool ProfileStore::HasFile(const std::string& profile) {
    return !profile.empty() && ProfileNameValid(profile) && !IsReserved(profile);
}

std::optional<IniText> ProfileStore::ProfileText() const {
    if (!HasFile(CurrentProfile)) return IniText("");
    return files_.Read(PathOf(CurrentProfile));
}

std::optional<IniEntries> ProfileStore::ReadProfile(const std::string& section) {
    if (!ProfileInUse()) return std::nullopt;
    std::optional<IniText> own;
    const bool isRead = reading_ && reading_->profile == CurrentProfile;
    if (!isRead) own = ProfileText();
    const std::optional<IniText>& text = isRead ? reading_->text : own;
    if (text) return text->Entries(section);
    profileMissed_ = true;
    return std::nullopt;
}

SaveResult ProfileStore::SaveProfile(const std::string& profile, const std::string& section,
                                     const std::function<bool(IniSection&)>& write) {
    if (!HasFile(profile)) return Unread(profile);
    const bool saved = Patience(clock_, kSavePatienceMs).Try([&] {
        return files_.Save(PathOf(profile), section, write);
    });
    return files_.Result(saved, PathOf(profile));
}

SaveResult ProfileStore::Unread(const std::string& profile) const {
    if (!HasFile(profile)) {
        return SaveResult::Impossible("No profile is in use, so there is nowhere to save to.");
    }
    return SaveResult::Unread(PathOf(profile));
}

ProfileReading::ProfileReading(ProfileStore& profiles)
    : profiles_(profiles), before_(std::move(profiles.reading_)) {
    profiles_.reading_ = ProfileStore::ReadText{profiles_.CurrentProfile, profiles_.ProfileText()};
    profiles_.profileMissed_ = false;
}

ProfileReading::~ProfileReading() { profiles_.reading_ = std::move(before_); }
