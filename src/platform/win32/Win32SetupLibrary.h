#pragma once

#include "platform/win32/Win32Library.h"
// Counts on windows.h.
#include <setupapi.h>

// What the adapter uses of setupapi.dll. A function that can't be had is null.
class Win32SetupLibrary {
  public:
    Win32SetupLibrary();

    bool IsComplete() const {
        return getClassDevs && enumDeviceInterfaces && getDeviceInterfaceDetail &&
               destroyDeviceInfoList;
    }

    decltype(&SetupDiGetClassDevsA) getClassDevs = nullptr;
    decltype(&SetupDiEnumDeviceInterfaces) enumDeviceInterfaces = nullptr;
    decltype(&SetupDiGetDeviceInterfaceDetailA) getDeviceInterfaceDetail = nullptr;
    decltype(&SetupDiDestroyDeviceInfoList) destroyDeviceInfoList = nullptr;

  private:
    Win32Library library_;
};
