#include "config/ProfileName.h"

#include <algorithm>

#include "base/Text.h"

bool ProfileNameValid(std::string_view text) {
    return std::ranges::all_of(text, [](char c) {
        return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9');
    });
}

bool ProfileNameReserved(std::string_view name) {
    for (const char* reserved : {"Orvo", "CON", "PRN", "AUX", "NUL"}) {
        if (EqualNoCase(name, reserved)) return true;
    }
    const std::string_view kind = name.substr(0, 3);
    return name.size() == 4 && name[3] >= '1' && name[3] <= '9' &&
           (EqualNoCase(kind, "COM") || EqualNoCase(kind, "LPT"));
}
