#pragma once

#include <string>

#include "bench/virtual/VirtualCockpit.h"

// What is wrong with what the panels were sent since the last call, which takes it: a report of a
// size or with a code that its kind of panel doesn't have. Empty when nothing is.
std::string WrongReports(PanelKind kind, VirtualDevice& device);
