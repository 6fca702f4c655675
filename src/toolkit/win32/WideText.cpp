#include "toolkit/win32/WideText.h"

#include <windows.h>

namespace {
constexpr UINT kCodePage = 1252;
}

std::wstring ToWide(std::string_view text) {
    std::wstring wide(text.size(), L'\0');  // one unit for each byte in this code page
    MultiByteToWideChar(kCodePage, 0, text.data(), static_cast<int>(text.size()), wide.data(),
                        static_cast<int>(wide.size()));
    return wide;
}

std::string FromWide(std::wstring_view text) {
    std::string narrow(text.size(), '\0');
    const int written = WideCharToMultiByte(kCodePage, WC_NO_BEST_FIT_CHARS, text.data(),
                                            static_cast<int>(text.size()), narrow.data(),
                                            static_cast<int>(narrow.size()), nullptr, nullptr);
    narrow.resize(static_cast<size_t>(written));
    return narrow;
}

std::optional<uint8_t> ToByte(wchar_t character) {
    char byte = 0;
    BOOL lacking = FALSE;
    WideCharToMultiByte(kCodePage, WC_NO_BEST_FIT_CHARS, &character, 1, &byte, 1, nullptr,
                        &lacking);
    if (lacking) return std::nullopt;
    return static_cast<uint8_t>(byte);
}
