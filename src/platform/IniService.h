#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>

// Private profile files. Names compare without regard to case; nothing is cached between calls.
class IniService {
  public:
    virtual ~IniService() = default;

    // Copies the value of the key, without the blanks and the pair of quotes around it, or
    // `fallback` if there is none. No key: the names of the section's keys; no section: the names
    // of the file's sections; each name with a NUL behind it, in the order of the file. The buffer
    // ends in a NUL (a list in two), what doesn't fit is cut. Gives the number of characters
    // copied, the last NUL not counted. A missing file counts as an empty one.
    virtual uint32_t GetPrivateProfileStringA(const std::optional<std::string>& section,
                                              const std::optional<std::string>& key,
                                              const std::string& fallback, std::span<char> buffer,
                                              const std::string& path) = 0;

    // Writes the key, making section and file when needed. No value deletes the key, no key and no
    // value the section. False when the file can't be written.
    virtual bool WritePrivateProfileStringA(const std::string& section,
                                            const std::optional<std::string>& key,
                                            const std::optional<std::string>& value,
                                            const std::string& path) = 0;
};
