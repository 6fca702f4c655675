#include "platform/win32/Win32Ini.h"

#include <windows.h>

namespace {

const char* TextOrNull(const std::optional<std::string>& text) {
    return text ? text->c_str() : nullptr;
}

}  // namespace

uint32_t Win32Ini::GetPrivateProfileStringA(const std::optional<std::string>& section,
                                            const std::optional<std::string>& key,
                                            const std::string& fallback, std::span<char> buffer,
                                            const std::string& path) {
    const auto size = static_cast<DWORD>(buffer.size());
    const DWORD length = ::GetPrivateProfileStringA(
        TextOrNull(section), TextOrNull(key), fallback.c_str(), buffer.data(), size, path.c_str());
    // Not every system sets the second NUL of a list that it cuts.
    if ((!section || !key) && length + 2 == size) buffer.back() = '\0';
    return length;
}

bool Win32Ini::WritePrivateProfileStringA(const std::string& section,
                                          const std::optional<std::string>& key,
                                          const std::optional<std::string>& value,
                                          const std::string& path) {
    return ::WritePrivateProfileStringA(section.c_str(), TextOrNull(key), TextOrNull(value),
                                        path.c_str()) != 0;
}
