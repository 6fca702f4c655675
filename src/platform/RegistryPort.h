#pragma once

#include <cstdint>
#include <optional>
#include <string>

// Values of the registry. `root` is the platform's number of a root key (0x80000001 the current
// user's), `type` its number of a data type (1 a string).
class RegistryPort {
  public:
    virtual ~RegistryPort() = default;

    // Nothing if the key or the value can't be read or isn't a string.
    virtual std::optional<std::string> ReadValue(uint32_t root, const std::string& key,
                                                 const std::string& name) = 0;
    // Makes the key when needed. False when the registry refuses.
    virtual bool WriteValue(uint32_t root, const std::string& key, const std::string& name,
                            uint32_t type, const std::string& data) = 0;
    // Writes a path below the program's folder. It may be given in a form that only this program
    // understands, see ProcessPort; written is the full one, with all its letters.
    virtual bool WritePath(uint32_t root, const std::string& key, const std::string& name,
                           uint32_t type, const std::string& path) = 0;
    virtual bool DeleteValue(uint32_t root, const std::string& key, const std::string& name) = 0;
};
