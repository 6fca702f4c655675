#pragma once

#include <cstdint>
#include <vector>

#include "platform/ScreenPort.h"
#include "toolkit/Form.h"

// Puts a form where it was saved (twips), if it lies wholly inside the work area of the monitor
// nearest to that place; otherwise it is centred there. 0, 0 means that no place was saved: it is
// centred on the first monitor. Without any monitor it goes to 0, 0.
void PlaceForm(Form& form, int32_t left, int32_t top, const std::vector<ScreenRect>& MonitorRects,
               ScreenPort& screen);
