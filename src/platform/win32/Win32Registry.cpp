#include "platform/win32/Win32Registry.h"

#include <windows.h>

#include <memory>
#include <type_traits>

#include "platform/win32/Win32Path.h"

namespace {

constexpr REGSAM kQueryAccess = 1;
constexpr REGSAM kAllAccess = 63;

struct KeyCloser {
    void operator()(HKEY key) const { RegCloseKey(key); }
};
using RegistryKey = std::unique_ptr<std::remove_pointer_t<HKEY>, KeyCloser>;

// The system's root keys are the number with its sign spread over the pointer.
HKEY RootKey(uint32_t root) {
    return reinterpret_cast<HKEY>(static_cast<intptr_t>(static_cast<int32_t>(root)));
}

RegistryKey OpenKey(uint32_t root, const std::string& path, REGSAM access) {
    HKEY key = nullptr;
    const LSTATUS status = RegOpenKeyExA(RootKey(root), path.c_str(), 0, access, &key);
    return RegistryKey(status == ERROR_SUCCESS ? key : nullptr);
}

RegistryKey CreateKey(uint32_t root, const std::string& path) {
    HKEY key = nullptr;
    const LSTATUS status =
        RegCreateKeyExA(RootKey(root), path.c_str(), 0, nullptr, REG_OPTION_NON_VOLATILE,
                        kAllAccess, nullptr, &key, nullptr);
    return RegistryKey(status == ERROR_SUCCESS ? key : nullptr);
}

}  // namespace

std::optional<std::string> Win32Registry::ReadValue(uint32_t root, const std::string& key,
                                                    const std::string& name) {
    const auto opened = OpenKey(root, key, kQueryAccess);
    if (!opened) return std::nullopt;
    DWORD type = REG_NONE;
    DWORD size = 0;
    if (RegQueryValueExA(opened.get(), name.c_str(), nullptr, &type, nullptr, &size) !=
            ERROR_SUCCESS ||
        type != REG_SZ) {
        return std::nullopt;
    }
    std::string text(size, '\0');
    if (RegQueryValueExA(opened.get(), name.c_str(), nullptr, &type,
                         reinterpret_cast<BYTE*>(text.data()), &size) != ERROR_SUCCESS ||
        type != REG_SZ) {
        return std::nullopt;
    }
    // The NUL at the end is the writer's care: it may be there or not.
    text.resize(size);
    return text.substr(0, text.find('\0'));
}

bool Win32Registry::WriteValue(uint32_t root, const std::string& key, const std::string& name,
                               uint32_t type, const std::string& data) {
    const auto opened = CreateKey(root, key);
    if (!opened) return false;
    const size_t size = data.size() + (type == REG_SZ || type == REG_EXPAND_SZ ? 1 : 0);
    return RegSetValueExA(opened.get(), name.c_str(), 0, type,
                          reinterpret_cast<const BYTE*>(data.c_str()),
                          static_cast<DWORD>(size)) == ERROR_SUCCESS;
}

bool Win32Registry::WritePath(uint32_t root, const std::string& key, const std::string& name,
                              uint32_t type, const std::string& path) {
    const auto opened = CreateKey(root, key);
    if (!opened) return false;
    const std::wstring full = FullPath(path);
    return RegSetValueExW(opened.get(), ToWide(name).c_str(), 0, type,
                          reinterpret_cast<const BYTE*>(full.c_str()),
                          static_cast<DWORD>((full.size() + 1) * sizeof(wchar_t))) == ERROR_SUCCESS;
}

bool Win32Registry::DeleteValue(uint32_t root, const std::string& key, const std::string& name) {
    const auto opened = OpenKey(root, key, kAllAccess);
    return opened && RegDeleteValueA(opened.get(), name.c_str()) == ERROR_SUCCESS;
}
