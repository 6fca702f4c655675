#pragma once

#include <cstdint>

#include "simlink/modFSUIPC.h"

// Asks the simulator to run a control. It goes out with the next exchange; several go out in the
// order of their calls.
void SendControl(modFSUIPC& fsuipc, int32_t Control, int32_t Parameter);
