#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/RegistryPort.h"

// One value of the registry.
class cRegistry {
  public:
    explicit cRegistry(RegistryPort& port) : port_(port) {}

    uint32_t ClassKey = 0;   // root key
    std::string SectionKey;  // path below the root
    std::string ValueKey;    // name of the value
    uint32_t ValueType = 0;  // data type, 1 is a string
    std::string Default;

    // Default if the key or the value can't be read.
    std::string Value() const {
        return port_.ReadValue(ClassKey, SectionKey, ValueKey).value_or(Default);
    }
    // Makes the key when needed. What the registry refuses stays undone.
    void SetValue(const std::string& data) {
        port_.WriteValue(ClassKey, SectionKey, ValueKey, ValueType, data);
    }
    // As SetValue, of a path in the form in which the program uses it.
    void SetPath(const std::string& path) {
        port_.WritePath(ClassKey, SectionKey, ValueKey, ValueType, path);
    }
    void DeleteValue() { port_.DeleteValue(ClassKey, SectionKey, ValueKey); }

  private:
    RegistryPort& port_;
};
