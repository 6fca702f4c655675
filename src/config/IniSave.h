#pragma once

#include <functional>
#include <string>
#include <vector>

#include "config/cInifile.h"
#include "platform/FilePort.h"

// Saves several keys of one file so that all of them arrive or none: `write` works on a copy of the
// file, which takes the file's place in one step at the end. A program that dies half way leaves
// the old file, and a copy that the next save overwrites. False, with the file as it was, when the
// copy can't be made or `write` gives false. A file that isn't there, and that `write` writes
// nothing to, isn't made.
bool SaveIni(IniService& service, FilePort& files, const std::string& path,
             const std::function<bool(cInifile&)>& write);

// Sets the key of `ini` to `text`. One of `keys`, those that the section holds, that differs from
// it in case is deleted first: the service would keep its name, by which readers don't find it.
// False when anything fails.
bool SetKey(cInifile& ini, const std::vector<std::string>& keys, const std::string& text);

// Deletes the key of `ini` if it is one of `keys`, in any case: what isn't there needs no pass
// over the file. False when the deletion fails.
bool DeleteIfThere(cInifile& ini, const std::vector<std::string>& keys);
