#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "config/cInifile.h"
#include "platform/FilePort.h"

// The profiles, the aircraft that are bound to them, and the way to the profiles' files. Both lists
// stand in Orvo.ini; each profile has a file of its own beside it, which comes into being with the
// first write. Names of profiles and titles of aircraft compare without regard to case, as files
// and ini keys do.
class ProfileStore {
  public:
    ProfileStore(IniService& ini, FilePort& files, std::string programFolder);

    std::string CurrentProfile = kDefault;

    // "Default" is always the last one and never in the file.
    const std::vector<std::string>& ProfileNames() const { return profileNames_; }

    void LoadProfileList();
    void LoadAircraftList();
    // Another program may hold the file at that moment: reads what may be missing of the lists, if
    // anything may. True when there are more names than before.
    bool ReadWhatIsMissing();
    // The whole list or, when the file can't be written or couldn't be read as a whole, nothing.
    void SaveProfileList();
    void SaveAircraftList();

    bool AircraftKnown(std::string_view title) const;
    // Empty when the aircraft is unknown.
    std::string ProfileOfAircraft(std::string_view title) const;
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

    // A section of the current profile's file, for reading.
    cInifile OpenProfile(std::string section) const;
    // Changes the current profile's file. What `write` does through what it is given arrives as a
    // whole, or not at all when it gives false.
    void SaveProfile(const std::function<bool(cInifile&)>& write);

    static constexpr const char* kDefault = "Default";

  private:
    struct Aircraft {
        std::string title;
        std::string profile;
    };

    const Aircraft* Find(std::string_view title) const;
    std::string ProfilePath() const { return programFolder_ + '\\' + CurrentProfile + ".ini"; }
    bool ReadProfileList();
    bool ReadAircraftList();
    // False when some entries may be missing.
    bool ReadSection(const char* section, IniEntries& entries) const;
    void RewriteSection(const char* section, IniEntries entries, IniEntries& inFile);

    IniService& ini_;
    FilePort& files_;
    const std::string programFolder_;
    const std::string path_;
    std::vector<std::string> profileNames_{kDefault};
    std::vector<Aircraft> aircrafts_;
    // The lists as the file has them, and whether all of them is in memory.
    IniEntries profilesInFile_;
    IniEntries aircraftsInFile_;
    bool profilesWhole_ = true;
    bool aircraftsWhole_ = true;
};
