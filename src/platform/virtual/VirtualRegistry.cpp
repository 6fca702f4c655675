#include "platform/virtual/VirtualRegistry.h"

#include "base/Text.h"

namespace {

constexpr uint32_t kString = 1;

}  // namespace

std::optional<std::string> VirtualRegistry::ReadValue(uint32_t root, const std::string& key,
                                                      const std::string& name) {
    const Value* value = Look(root, key, name);
    if (faults_.Take(RegistryCall::ReadValue) || !value || value->type != kString) {
        return std::nullopt;
    }
    return value->data;
}

bool VirtualRegistry::WriteValue(uint32_t root, const std::string& key, const std::string& name,
                                 uint32_t type, const std::string& data) {
    if (faults_.Take(RegistryCall::WriteValue)) return false;
    values_[PlaceOf(root, key, name)] = {type, data};
    return true;
}

bool VirtualRegistry::DeleteValue(uint32_t root, const std::string& key, const std::string& name) {
    if (faults_.Take(RegistryCall::DeleteValue)) return false;
    return values_.erase(PlaceOf(root, key, name)) != 0;
}

const VirtualRegistry::Value* VirtualRegistry::Look(uint32_t root, const std::string& key,
                                                    const std::string& name) const {
    const auto found = values_.find(PlaceOf(root, key, name));
    return found == values_.end() ? nullptr : &found->second;
}

VirtualRegistry::Place VirtualRegistry::PlaceOf(uint32_t root, const std::string& key,
                                                const std::string& name) {
    return {root, ToLower(key), ToLower(name)};
}
