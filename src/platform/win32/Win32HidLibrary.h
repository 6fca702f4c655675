#pragma once

#include "platform/win32/Win32Library.h"
// Counts on windows.h.
#include <hidsdi.h>

// What the adapter uses of hid.dll. A function that can't be had is null.
class Win32HidLibrary {
  public:
    Win32HidLibrary();

    bool IsComplete() const {
        return getHidGuid && getAttributes && setFeature && getFeature && setNumInputBuffers;
    }

    decltype(&HidD_GetHidGuid) getHidGuid = nullptr;
    decltype(&HidD_GetAttributes) getAttributes = nullptr;
    decltype(&HidD_SetFeature) setFeature = nullptr;
    decltype(&HidD_GetFeature) getFeature = nullptr;
    decltype(&HidD_SetNumInputBuffers) setNumInputBuffers = nullptr;

  private:
    Win32Library library_;
};
