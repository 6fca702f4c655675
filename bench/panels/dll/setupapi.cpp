// Stands in for the system's setupapi.dll beside a program that is to see the virtual panels: the
// devices are the lines of panels.txt in this DLL's own folder.

#include <windows.h>
// Counts on windows.h; the macro keeps it from declaring the functions as imported.
#define _SETUPAPI_
#include <setupapi.h>

#include <cstddef>
#include <cstring>
#include <fstream>
#include <string>
#include <vector>

namespace {

using PathList = std::vector<std::string>;

std::string ListFile() {
    HMODULE self = nullptr;
    GetModuleHandleExA(
        GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
        reinterpret_cast<LPCSTR>(&ListFile), &self);
    char path[MAX_PATH] = "";
    GetModuleFileNameA(self, path, MAX_PATH);
    const std::string file = path;
    return file.substr(0, file.find_last_of('\\') + 1) + "panels.txt";
}

}  // namespace

extern "C" {

HDEVINFO WINAPI SetupDiGetClassDevsA(const GUID*, PCSTR, HWND, DWORD) {
    auto* list = new PathList;
    std::ifstream file(ListFile());
    for (std::string line; std::getline(file, line);) {
        if (!line.empty() && line.back() == '\r') line.pop_back();
        if (!line.empty()) list->push_back(line);
    }
    return list;
}

WINBOOL WINAPI SetupDiEnumDeviceInterfaces(HDEVINFO list, PSP_DEVINFO_DATA, const GUID* classGuid,
                                           DWORD index, PSP_DEVICE_INTERFACE_DATA device) {
    if (device->cbSize != sizeof *device) {
        SetLastError(ERROR_INVALID_USER_BUFFER);
        return FALSE;
    }
    if (index >= static_cast<PathList*>(list)->size()) {
        SetLastError(ERROR_NO_MORE_ITEMS);
        return FALSE;
    }
    device->InterfaceClassGuid = *classGuid;
    device->Flags = SPINT_ACTIVE;
    device->Reserved = index;
    return TRUE;
}

WINBOOL WINAPI SetupDiGetDeviceInterfaceDetailA(HDEVINFO list, PSP_DEVICE_INTERFACE_DATA device,
                                                PSP_DEVICE_INTERFACE_DETAIL_DATA_A detail,
                                                DWORD detailSize, PDWORD requiredSize,
                                                PSP_DEVINFO_DATA) {
    const std::string& path = static_cast<PathList*>(list)->at(device->Reserved);
    const auto needed = static_cast<DWORD>(offsetof(SP_DEVICE_INTERFACE_DETAIL_DATA_A, DevicePath) +
                                           path.size() + 1);
    if (requiredSize) *requiredSize = needed;
    if (detailSize < needed) {
        SetLastError(ERROR_INSUFFICIENT_BUFFER);
        return FALSE;
    }
    if (detail->cbSize != sizeof *detail) {
        SetLastError(ERROR_INVALID_USER_BUFFER);
        return FALSE;
    }
    std::memcpy(detail->DevicePath, path.c_str(), path.size() + 1);
    return TRUE;
}

WINBOOL WINAPI SetupDiDestroyDeviceInfoList(HDEVINFO list) {
    delete static_cast<PathList*>(list);
    return TRUE;
}

}  // extern "C"
