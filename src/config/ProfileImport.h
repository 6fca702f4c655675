#pragma once

#include <optional>
#include <string>
#include <vector>

#include "config/ProfileFiles.h"

// Takes sections of one profile's file over into another's, as text, whatever they hold.
class ProfileImport {
  public:
    // Takes the source as it is at this moment. `files` must outlive it.
    ProfileImport(const ProfileFiles& files, std::string source, std::string target);

    // Names of the source's sections in the order of its file, each once. Nothing while the file
    // can't be read.
    std::optional<std::vector<std::string>> Sections() const;

    // Each of these sections replaces the target's of that name, so that no key of the old one
    // survives. All of it arrives, or nothing.
    SaveResult Copy(const std::vector<std::string>& sections) const;

  private:
    const ProfileFiles& files_;
    const std::string source_;
    const std::string target_;
    const std::optional<IniText> text_;
};
