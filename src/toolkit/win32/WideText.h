#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

// The program's Windows-1252 text and the UTF-16 of the windows. What Windows-1252 doesn't have
// comes back as a question mark.
std::wstring ToWide(std::string_view text);
std::string FromWide(std::wstring_view text);

// Nothing for a character that Windows-1252 doesn't have.
std::optional<uint8_t> ToByte(wchar_t character);
