#include "platform/virtual/VirtualIni.h"

#include <algorithm>

#include "base/IniText.h"

namespace {

// Copies what fits and leaves room for `nuls` NULs behind it.
uint32_t Give(const std::string& text, std::span<char> buffer, size_t nuls) {
    const size_t room = buffer.size() > nuls ? buffer.size() - nuls : 0;
    const size_t count = std::min(text.size(), room);
    std::copy_n(text.begin(), count, buffer.begin());
    std::fill_n(buffer.begin() + static_cast<std::ptrdiff_t>(count),
                std::min(nuls, buffer.size() - count), '\0');
    return static_cast<uint32_t>(count);
}

uint32_t GiveFallback(std::string fallback, std::span<char> buffer) {
    fallback.erase(fallback.find_last_not_of(' ') + 1);
    return Give(fallback, buffer, 1);
}

}  // namespace

uint32_t VirtualIni::GetPrivateProfileStringA(const std::optional<std::string>& section,
                                              const std::optional<std::string>& key,
                                              const std::string& fallback, std::span<char> buffer,
                                              const std::string& path) {
    if (buffer.empty()) return 0;
    const IniText ini(files_.Read(path).value_or(""));
    if (section && key) {
        const auto value = ini.Value(*section, *key);
        return value ? Give(*value, buffer, 1) : GiveFallback(fallback, buffer);
    }
    std::string list;
    for (const std::string& name : section ? ini.Keys(*section) : ini.Sections()) {
        list.append(name).push_back('\0');
    }
    return list.empty() ? GiveFallback(fallback, buffer) : Give(list, buffer, 2);
}

bool VirtualIni::WritePrivateProfileStringA(const std::string& section,
                                            const std::optional<std::string>& key,
                                            const std::optional<std::string>& value,
                                            const std::string& path) {
    const auto content = files_.Read(path);
    if (!content && files_.Look(path)) return false;  // it is there but can't be read
    IniText ini(content.value_or(""));
    const bool changed = !key    ? ini.DeleteSection(section)
                         : value ? ini.Set(section, *key, *value)
                                 : ini.DeleteKey(section, *key);
    return !changed || files_.Write(path, ini.Text());
}
