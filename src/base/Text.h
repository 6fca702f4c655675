#pragma once

#include <string>
#include <string_view>
#include <vector>

// Text is 8-bit Windows-1252, one byte a character.

char ToLower(char character);
char ToUpper(char character);
std::string ToLower(std::string_view text);
bool EqualNoCase(std::string_view a, std::string_view b);

// Without blanks and tabs at both ends.
std::string_view Trim(std::string_view text);

// The pieces between the separators, at least one.
std::vector<std::string_view> Split(std::string_view text, char separator);

// UTF-16, the lower byte first, as 8-bit text; what that hasn't is a '?', and half a character at
// the end is left out.
std::string FromUtf16(std::string_view bytes);
