#include "platform/win32/Win32HidLibrary.h"

Win32HidLibrary::Win32HidLibrary() : library_(L"hid.dll") {
    library_.Find("HidD_GetHidGuid", getHidGuid);
    library_.Find("HidD_GetAttributes", getAttributes);
    library_.Find("HidD_SetFeature", setFeature);
    library_.Find("HidD_GetFeature", getFeature);
    library_.Find("HidD_SetNumInputBuffers", setNumInputBuffers);
}
