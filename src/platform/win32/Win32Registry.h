#pragma once

#include "platform/RegistryPort.h"

class Win32Registry final : public RegistryPort {
  public:
    std::optional<std::string> ReadValue(uint32_t root, const std::string& key,
                                         const std::string& name) override;
    bool WriteValue(uint32_t root, const std::string& key, const std::string& name, uint32_t type,
                    const std::string& data) override;
    bool WritePath(uint32_t root, const std::string& key, const std::string& name, uint32_t type,
                   const std::string& path) override;
    bool DeleteValue(uint32_t root, const std::string& key, const std::string& name) override;
};
