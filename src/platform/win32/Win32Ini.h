#pragma once

#include "platform/IniService.h"

class Win32Ini final : public IniService {
  public:
    uint32_t GetPrivateProfileStringA(const std::optional<std::string>& section,
                                      const std::optional<std::string>& key,
                                      const std::string& fallback, std::span<char> buffer,
                                      const std::string& path) override;
    bool WritePrivateProfileStringA(const std::string& section,
                                    const std::optional<std::string>& key,
                                    const std::optional<std::string>& value,
                                    const std::string& path) override;
};
