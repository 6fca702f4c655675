#pragma once

#include <string>
#include <string_view>

#include "simlink/actions/ActionRecord.h"

// The form in which an action stands in a profile file: "None", "Offset", "VButton,64,3" or
// "VKey,65,3,65". Words are read without regard to case, and blanks
// around the pieces don't count.

// Takes the text over into `record`; with "None" and "Offset" the fields behind FSEvent stay. A
// text with an unknown word, a missing piece, or a piece that is no number of its field leaves the
// record as it is.
void ReadAction(std::string_view text, ActionRecord& record);

std::string ActionText(const ActionRecord& record);
