#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "base/IniText.h"
#include "config/SaveResult.h"
#include "config/cInifile.h"
#include "platform/FilePort.h"

// How long a save that the user has asked for waits for a file that another program holds.
inline constexpr uint32_t kSavePatienceMs = 200;

// One section of a file that is being saved.
class IniSection {
  public:
    // `keys` are those that the section holds.
    IniSection(cInifile ini, std::vector<std::string> keys)
        : ini_(std::move(ini)), keys_(std::move(keys)) {}

    const std::vector<std::string>& Keys() const { return keys_; }
    // One of the keys that differs in case is deleted first: the service would keep its name, by
    // which readers don't find it. False when anything fails.
    [[nodiscard]] bool Set(const std::string& key, const std::string& text);
    // However often it is there, in any case; a key that isn't there needs no pass over the file.
    // False when the deletion fails.
    [[nodiscard]] bool Delete(const std::string& key);

  private:
    cInifile ini_;
    const std::vector<std::string> keys_;
};

// The one way in which the program reads and saves ini files. Another program, such as a virus
// scanner or a backup, may hold a file at any moment: so a reading gives the whole file or nothing,
// lest a held file be taken for an empty one, and a save needs to have read the file.
class IniFiles {
  public:
    IniFiles(IniService& service, FilePort& files) : service_(service), files_(files) {}

    // Nothing while the file can't be read. A file that isn't there is an empty one.
    std::optional<IniText> Read(const std::string& path) const;

    // Saves keys of one section so that all of them arrive or none: `write` works on a copy of the
    // file, which takes the file's place in one step at the end. A program that dies half way
    // leaves the old file, and a copy that a later save overwrites. False, with the file as it was,
    // when it can't be read or replaced or `write` gives false. A file that isn't there, and that
    // `write` writes nothing to, isn't made.
    [[nodiscard]] bool Save(const std::string& path, const std::string& section,
                            const std::function<bool(IniSection&)>& write) const;

    // Puts these keys in the place of the whole section of each name, in one pass, all or nothing.
    // The sections move to the end of the file. In a file of 16-bit text they keep their places,
    // and their keys the order.
    [[nodiscard]] bool SaveSections(const std::string& path, const IniSections& sections) const;

    // What a save of the file that has gone so is to tell the user.
    SaveResult Result(bool saved, const std::string& path) const {
        return saved ? SaveResult() : SaveResult::Refused(path, files_.LastProblem());
    }

  private:
    std::optional<std::string> Bytes(const std::string& path) const;
    IniSection SectionOf(const std::string& copy, const std::string& section,
                         const IniText& before) const;
    // The file gets `bytes`, changed by `write`, which is given the path of the copy.
    bool ByCopy(const std::string& path, const std::string& bytes,
                const std::function<bool(const std::string&)>& write) const;
    std::optional<std::string> MakeCopy(const std::string& path, const std::string& bytes) const;

    IniService& service_;
    FilePort& files_;
};
