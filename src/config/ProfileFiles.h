#pragma once

#include <functional>
#include <optional>
#include <string>

#include "config/IniFiles.h"
#include "platform/Clock.h"

// The files of the profiles, beside the program. A file comes into being with the first write to
// it; a name that can't be a profile's has an empty file, which can't be saved. Saves and deletions
// wait a moment for a file that another program holds.
class ProfileFiles {
  public:
    ProfileFiles(IniService& ini, FilePort& files, Clock& clock, std::string programFolder);

    // Nothing while the file can't be read. One that isn't there is empty.
    std::optional<IniText> Read(const std::string& profile) const;

    // Changes a section. What `write` does through what it is given arrives as a whole, or not at
    // all when it gives false or the file can't be written.
    SaveResult Save(const std::string& profile, const std::string& section,
                    const std::function<bool(IniSection&)>& write) const;
    // Each takes the place of the whole section of its name, one without keys that of none; all of
    // them arrive, or none.
    SaveResult SaveSections(const std::string& profile, const IniSections& sections) const;
    // One that can't be deleted stays.
    void Delete(const std::string& profile) const;

    // The result of a save of what couldn't be read.
    SaveResult Unread(const std::string& profile) const;

  private:
    SaveResult SavePatiently(const std::string& profile,
                             const std::function<bool(const std::string& path)>& save) const;
    std::string PathOf(const std::string& profile) const {
        return programFolder_ + '\\' + profile + ".ini";
    }

    const IniFiles ini_;
    FilePort& files_;
    Clock& clock_;
    const std::string programFolder_;
};
