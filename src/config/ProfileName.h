#pragma once

#include <string_view>

// Whether a text has only what may stand in a profile's name, letters A to Z and digits. An empty
// one has.
bool ProfileNameValid(std::string_view text);

// Whether the file of that name is no profile's: "Orvo.ini" has the lists, and some names are the
// system's for devices.
bool ProfileNameReserved(std::string_view name);
