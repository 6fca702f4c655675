#pragma once

#include <map>
#include <tuple>

#include "platform/RegistryPort.h"
#include "platform/virtual/Faults.h"

enum class RegistryCall : uint8_t { ReadValue, WriteValue, DeleteValue };

// Registry values in memory. Names of keys and values compare without regard to case.
class VirtualRegistry : public RegistryPort {
  public:
    struct Value {
        uint32_t type = 0;
        std::string data;
    };

    std::optional<std::string> ReadValue(uint32_t root, const std::string& key,
                                         const std::string& name) override;
    bool WriteValue(uint32_t root, const std::string& key, const std::string& name, uint32_t type,
                    const std::string& data) override;
    bool WritePath(uint32_t root, const std::string& key, const std::string& name, uint32_t type,
                   const std::string& path) override {
        return WriteValue(root, key, name, type, path);
    }
    bool DeleteValue(uint32_t root, const std::string& key, const std::string& name) override;

    void Refuse(RegistryCall call, int times = Faults<RegistryCall>::kAlways) {
        faults_.Refuse(call, times);
    }
    // Null if there is none.
    const Value* Look(uint32_t root, const std::string& key, const std::string& name) const;

  private:
    using Place = std::tuple<uint32_t, std::string, std::string>;
    static Place PlaceOf(uint32_t root, const std::string& key, const std::string& name);

    std::map<Place, Value> values_;
    Faults<RegistryCall> faults_;
};
