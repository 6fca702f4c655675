#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platform/IniService.h"

// A path, a section, a key and a default; nothing of the file is kept, every read and write goes
// straight to the platform's service. It reads a file that another program holds as an empty one:
// what is to be whole goes through IniFiles.
class cInifile {
  public:
    explicit cInifile(IniService& service) : service_(service) {}

    std::string Path;
    std::string Section;
    std::string Key;
    std::string Default;

    // Text of Key, at most 254 characters of it; Default if there is none.
    std::string Value() const;
    // NUL characters are left out.
    void SetValue(std::string_view text);
    void DeleteKey();
    void DeleteSection();

    // The names, each with a NUL behind it, as far as they fit into 8192 characters.
    std::string INISection() const;
    std::string Sections() const;

    // The names one by one, in the order of the file. A name that was cut off at the end of the
    // list is not among them.
    void EnumerateCurrentSection(std::vector<std::string>& sKey, int32_t& iCount) const;
    void EnumerateAllSections(std::vector<std::string>& sSections, int32_t& iCount) const;

    // What the last write or deletion gave; 0 is failure.
    int32_t LastReturnCode() const { return lastReturnCode_; }
    bool Success() const { return lastReturnCode_ != 0; }

  private:
    std::string Names(const std::optional<std::string>& section) const;

    IniService& service_;
    int32_t lastReturnCode_ = 0;
};
