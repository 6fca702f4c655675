#pragma once

#include <string>
#include <string_view>

// Any text as the name of an ini key. What the ini service would misread ('=', '%', control
// characters, a leading '[' or ';', blanks at the ends) becomes '%' and two hex digits, and so does
// what isn't ASCII: the service takes it for text of the system's code page, which may lack it.
// All else stands as it is.
std::string ToIniKey(std::string_view text);

// The text again. A '%' without two hex digits behind it stands for itself.
std::string FromIniKey(std::string_view key);
