#include "platform/win32/Win32Path.h"

#include <windows.h>

namespace {

// Asks for a text until there is room for it; empty when the system has none to give.
template <class Call>
std::wstring Ask(Call call) {
    std::wstring text(MAX_PATH, L'\0');
    DWORD length = call(text.data(), static_cast<DWORD>(text.size()));
    while (length > text.size()) {
        text.resize(length);
        length = call(text.data(), static_cast<DWORD>(text.size()));
    }
    text.resize(length);
    return text;
}

std::string ToCodePage(const std::wstring& text) {
    const auto size = static_cast<int>(text.size());
    std::string out(text.size() * 4, '\0');
    const int length =
        WideCharToMultiByte(CP_ACP, WC_NO_BEST_FIT_CHARS, text.data(), size, out.data(),
                            static_cast<int>(out.size()), nullptr, nullptr);
    out.resize(static_cast<size_t>(length));
    return out;
}

// Nothing when letters would change on the way.
std::optional<std::string> WholeInCodePage(const std::wstring& text) {
    std::string out = ToCodePage(text);
    if (text.empty() || ToWide(out) != text) return std::nullopt;
    return out;
}

}  // namespace

std::wstring ToWide(const std::string& text) {
    std::wstring out(text.size(), L'\0');
    const int length = MultiByteToWideChar(CP_ACP, 0, text.data(), static_cast<int>(text.size()),
                                           out.data(), static_cast<int>(out.size()));
    out.resize(static_cast<size_t>(length));
    return out;
}

std::string ReachableFolder(const std::wstring& folder) {
    auto name = WholeInCodePage(folder);
    if (!name) name = ByShortName(folder);
    if (!name) name = ByCurrentFolder(folder);
    return name.value_or(ToCodePage(folder));
}

std::optional<std::string> ByShortName(const std::wstring& folder) {
    return WholeInCodePage(Ask([&](wchar_t* buffer, DWORD size) {
        return GetShortPathNameW(folder.c_str(), buffer, size);
    }));
}

std::optional<std::string> ByCurrentFolder(const std::wstring& folder) {
    if (!SetCurrentDirectoryW(folder.c_str())) return std::nullopt;
    return ".";
}

std::wstring FullPath(const std::string& path) {
    const std::wstring given = ToWide(path);
    const std::wstring full = Ask([&](wchar_t* buffer, DWORD size) {
        return GetFullPathNameW(given.c_str(), size, buffer, nullptr);
    });
    const std::wstring whole = Ask(
        [&](wchar_t* buffer, DWORD size) { return GetLongPathNameW(full.c_str(), buffer, size); });
    return whole.empty() ? full : whole;
}
