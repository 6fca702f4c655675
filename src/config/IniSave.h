#pragma once

#include <functional>
#include <string>

#include "config/cInifile.h"
#include "platform/FilePort.h"

// Saves several keys of one file so that all of them arrive or none: `write` works on a copy of the
// file, which takes the file's place in one step at the end. A program that dies half way leaves
// the old file, and a copy that the next save overwrites. False, with the file as it was, when the
// copy can't be made or `write` gives false.
bool SaveIni(IniService& service, FilePort& files, const std::string& path,
             const std::function<bool(cInifile&)>& write);
