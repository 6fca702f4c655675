#pragma once

#include <string>

#include "platform/FilePort.h"
#include "platform/IniService.h"
#include "platform/Patience.h"
#include "toolkit/UiBackend.h"

// Earlier versions kept the panels' bindings in Orvo.ini itself. Where that is so, the user is
// asked whether they may become the profile "Default"; a file of that profile that is in the way is
// kept under the next free name, Default.1.ini and so on. What can't be renamed stays as it is; a
// file that can't be read within the `patience` is left to the next start. False when the user
// doesn't want that, and the program is to end.
bool ConvertOldConfiguration(IniService& ini, FilePort& files, UiBackend& ui,
                             const std::string& programFolder, Patience& patience);
