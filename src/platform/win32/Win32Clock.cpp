#include "platform/win32/Win32Clock.h"

#include <windows.h>

uint32_t Win32Clock::GetTickCount() { return ::GetTickCount(); }

void Win32Clock::Sleep(uint32_t milliseconds) { ::Sleep(milliseconds); }
