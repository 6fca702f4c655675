#include "platform/win32/Win32SetupLibrary.h"

Win32SetupLibrary::Win32SetupLibrary() : library_(L"setupapi.dll") {
    library_.Find("SetupDiGetClassDevsA", getClassDevs);
    library_.Find("SetupDiEnumDeviceInterfaces", enumDeviceInterfaces);
    library_.Find("SetupDiGetDeviceInterfaceDetailA", getDeviceInterfaceDetail);
    library_.Find("SetupDiDestroyDeviceInfoList", destroyDeviceInfoList);
}
