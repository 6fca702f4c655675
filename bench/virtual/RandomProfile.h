#pragma once

#include <string>

#include "bench/virtual/Choices.h"

// The text of a profile in which the panels of the first `panels` of each kind have actions of all
// sorts, and tiles of all functions, in one of the special modes.
std::string RandomProfile(Choices& choices, uint8_t mode, int16_t panels = 1);
