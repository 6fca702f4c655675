#pragma once

// The second counts on the first.
// clang-format off
#include <windows.h>
#include <commctrl.h>
// clang-format on
