#pragma once

#include <functional>
#include <string>

#include "bench/console/Command.h"

namespace bench {

// Reads commands from standard input, one a line, and answers each with one line on standard
// output, until "end" or the end of the input. Empty lines get no answer.
void ServeLines(const std::function<std::string(const Command&)>& answer);

}  // namespace bench
