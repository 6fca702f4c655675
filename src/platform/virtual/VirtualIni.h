#pragma once

#include "platform/IniService.h"
#include "platform/virtual/VirtualFiles.h"

// Private profile files among the virtual files, whose faults are its own.
class VirtualIni : public IniService {
  public:
    explicit VirtualIni(VirtualFiles& files) : files_(files) {}

    uint32_t GetPrivateProfileStringA(const std::optional<std::string>& section,
                                      const std::optional<std::string>& key,
                                      const std::string& fallback, std::span<char> buffer,
                                      const std::string& path) override;
    bool WritePrivateProfileStringA(const std::string& section,
                                    const std::optional<std::string>& key,
                                    const std::optional<std::string>& value,
                                    const std::string& path) override;

  private:
    VirtualFiles& files_;
};
