#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "config/ProfileFiles.h"

// The profiles, the aircraft that are bound to them, and the profile in use. Both lists stand in
// Orvo.ini; each profile has a file of its own beside it. Names of profiles and titles of aircraft
// compare without regard to case, as files and ini keys do.
//
// A change of a list counts at once; it reaches the file with the next save of that list.
class ProfileStore {
  public:
    ProfileStore(IniService& ini, FilePort& files, Clock& clock, const std::string& programFolder);

    const ProfileFiles Files;

    std::string CurrentProfile = kDefault;  // empty while none is in use
    bool ProfileInUse() const { return !CurrentProfile.empty(); }

    // "Default" is always the last one and never in the file.
    const std::vector<std::string>& ProfileNames() const { return profileNames_; }

    void LoadProfileList();
    void LoadAircraftList();
    // Another program may hold the file at that moment: reads what is missing of the lists, if
    // anything is. False while the file can't be read; the lists then aren't whole.
    [[nodiscard]] bool ReadWhatIsMissing();
    // Whether both lists have been read.
    bool ListsAreRead() const { return profilesWhole_ && aircraftsWhole_; }
    // The result of a save of lists that haven't.
    SaveResult Unread() const { return SaveResult::Unread(path_); }
    // The whole list or, when the file can't be written or hasn't been read, nothing.
    SaveResult SaveProfileList();
    SaveResult SaveAircraftList();

    bool AircraftKnown(std::string_view title) const;
    // Empty when the aircraft is unknown.
    std::string ProfileOfAircraft(std::string_view title) const;
    // The profile that the aircraft flies with: its own or, when that isn't in the list, "Default".
    std::string ProfileToFly(std::string_view title) const;
    // Titles in the order of the list.
    std::vector<std::string> AircraftNames() const;
    // For a title that isn't known yet and not empty; else it does nothing.
    void AddAircraft(std::string_view title, std::string_view profile);
    // Binds an aircraft that is known to another profile.
    void RebindAircraft(std::string_view title, std::string_view profile);
    bool HasAircraft(std::string_view profile) const;

    // Place of the name from 1, or -1.
    int32_t ProfileIndex(std::string_view name) const;
    // Whether a new profile may have this name: reserved ones are never free.
    bool ProfileNameFree(std::string_view name) const;
    // Puts it before "Default". A name that isn't free or valid, or is empty, does nothing.
    void AddProfile(const std::string& name);
    // Takes it out of the list and, when that is in the file, deletes its own. When the list can't
    // be saved nothing has changed.
    SaveResult DeleteProfile(const std::string& name);

    // The keys of a section of the current profile's file, with their values. Nothing while the
    // file can't be read, and without a profile in use; a name that is none of a profile's has an
    // empty file, which can't be saved.
    std::optional<IniEntries> ReadProfile(const std::string& section);
    // Whether ReadProfile could read nothing since the last ProfileReading began.
    bool ProfileMissed() const { return profileMissed_; }
    // Whether the current profile's file can be read at this moment.
    bool ProfileReadable() const { return Files.Read(CurrentProfile).has_value(); }

    static constexpr const char* kDefault = "Default";

  private:
    friend class ProfileReading;

    struct Aircraft {
        std::string title;
        std::string profile;
    };
    struct ReadText {
        std::string profile;
        std::optional<IniText> text;
    };

    const Aircraft* Find(std::string_view title) const;
    // False while the file can't be read.
    bool ReadProfileList();
    bool ReadAircraftList();
    SaveResult SaveList(const char* section, IniEntries entries, IniEntries& inFile);

    const IniFiles files_;
    const std::string path_;
    std::vector<std::string> profileNames_{kDefault};
    std::vector<std::string> unusableNames_;  // stay in the file, but can't be names of profiles
    std::vector<Aircraft> aircrafts_;
    std::unordered_map<std::string, size_t> aircraftPlaces_;  // by title in lower case
    // The lists as the file has them, and whether they are in memory.
    IniEntries profilesInFile_;
    IniEntries aircraftsInFile_;
    bool profilesWhole_ = true;
    bool aircraftsWhole_ = true;
    std::optional<ReadText> reading_;
    bool profileMissed_ = false;
};

// As long as it lives, all that ReadProfile gives of the profile that is current now comes from one
// reading, so that no panel gets another state of the file than the rest.
class ProfileReading {
  public:
    explicit ProfileReading(ProfileStore& profiles);
    ProfileReading(const ProfileReading&) = delete;
    ProfileReading& operator=(const ProfileReading&) = delete;
    ~ProfileReading();

  private:
    ProfileStore& profiles_;
    std::optional<ProfileStore::ReadText> before_;
};
