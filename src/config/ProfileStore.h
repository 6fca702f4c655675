#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "config/IniFiles.h"
#include "platform/Clock.h"

// The profiles, the aircraft that are bound to them, and the way to the profiles' files. Both lists
// stand in Orvo.ini; each profile has a file of its own beside it, which comes into being with the
// first write. Names of profiles and titles of aircraft compare without regard to case, as files
// and ini keys do.
class ProfileStore {
  public:
    ProfileStore(IniService& ini, FilePort& files, Clock& clock, std::string programFolder);

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
    // The whole list or, when the file can't be written or hasn't been read, nothing.
    SaveResult SaveProfileList();
    SaveResult SaveAircraftList();

    bool AircraftKnown(std::string_view title) const;
    // Empty when the aircraft is unknown.
    std::string ProfileOfAircraft(std::string_view title) const;
    // The profile that the aircraft flies with: its own or, when that isn't in the list, "Default".
    std::string ProfileToFly(std::string_view title) const;
    // For a title that isn't known yet and not empty; else it does nothing.
    void AddAircraft(std::string_view title, std::string_view profile);

    // Place of the name from 1, or -1.
    int32_t ProfileIndex(std::string_view name) const;
    // Whether a text has only what may stand in a profile's name, letters A to Z and digits. An
    // empty one has.
    static bool ProfileNameValid(std::string_view text);
    // Whether a new profile may have this name. "Orvo", whose file has the lists, and the names of
    // the system's devices are never free.
    bool ProfileNameFree(std::string_view name) const;

    // The keys of a section of the current profile's file, with their values. Nothing while the
    // file can't be read, and without a profile in use; a name that is none of a profile's has an
    // empty file, which can't be saved.
    std::optional<IniEntries> ReadProfile(const std::string& section);
    // Whether ReadProfile could read nothing since the last ProfileReading began.
    bool ProfileMissed() const { return profileMissed_; }
    // Whether the current profile's file can be read at this moment.
    bool ProfileReadable() const { return ProfileText().has_value(); }
    // Changes a section of a profile's file. What `write` does through what it is given
    // arrives as a whole, or not at all when it gives false or the file can't be written. Waits a
    // moment for a file that is held.
    SaveResult SaveProfile(const std::string& profile, const std::string& section,
                           const std::function<bool(IniSection&)>& write);

    // The result of a save of what ReadProfile couldn't read.
    SaveResult Unread(const std::string& profile) const;

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
    static bool HasFile(const std::string& profile);
    std::string PathOf(const std::string& profile) const {
        return programFolder_ + '\\' + profile + ".ini";
    }
    std::optional<IniText> ProfileText() const;
    // False while the file can't be read.
    bool ReadProfileList();
    bool ReadAircraftList();
    SaveResult SaveList(const char* section, IniEntries entries, IniEntries& inFile);

    const IniFiles files_;
    Clock& clock_;
    const std::string programFolder_;
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
