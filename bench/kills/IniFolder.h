#pragma once

#include <map>
#include <string>
#include <utility>
#include <vector>

namespace bench {

// What the ini files of a folder say, read without Orvo's own code.
struct IniFolder {
    // By "[Section] Key"; a line that is no entry stands for itself.
    using Entries = std::map<std::string, std::string>;

    std::map<std::string, Entries> files;  // by name
    // Unfinished copies of a save, with what tells one from another.
    std::map<std::string, std::string> copies;
    // Files that end within a line or hold bytes that no text has.
    std::vector<std::string> broken;

    static IniFolder Read(const std::string& folder);
};

// What is neither as it was nor as it was to become, file by file; empty when all is whole.
std::string Damage(const IniFolder& before, const IniFolder& wanted, const IniFolder& now);

}  // namespace bench
