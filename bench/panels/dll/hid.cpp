// Stands in for the system's hid.dll beside a program that is to see the virtual panels. Requests
// go over the very handle that the program has opened on a panel's pipe, one message each: 'F' and
// the report sets a feature report, 'G' reads one, 'S' asks for input reports. The answer is 'K',
// behind it what was asked for, or 'N'. After 'S' the handle gets input reports and nothing else.

#include <windows.h>
// Counts on windows.h, and doesn't say that these are C functions.
extern "C" {
#include <hidsdi.h>
}

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <cstring>
#include <span>
#include <string>
#include <string_view>

namespace {

using Message = std::array<uint8_t, 256>;

// The handle may be one for overlapped work or not. Waits as long as it takes.
bool Complete(HANDLE device, OVERLAPPED& work, BOOL done, DWORD& count) {
    if (!done && GetLastError() != ERROR_IO_PENDING) return false;
    return GetOverlappedResult(device, &work, &count, TRUE) != 0;
}

// Gives the answer if it begins with 'K', else nothing.
std::span<const uint8_t> Ask(HANDLE device, std::span<const uint8_t> request, Message& answer) {
    OVERLAPPED work{};
    work.hEvent = CreateEventA(nullptr, TRUE, FALSE, nullptr);
    DWORD count = 0;
    BOOL done =
        WriteFile(device, request.data(), static_cast<DWORD>(request.size()), nullptr, &work);
    bool well = Complete(device, work, done, count);
    if (well) {
        done = ReadFile(device, answer.data(), static_cast<DWORD>(answer.size()), nullptr, &work);
        well = Complete(device, work, done, count) && count > 0 && answer[0] == 'K';
    }
    CloseHandle(work.hEvent);
    return well ? std::span<const uint8_t>(answer).first(count) : std::span<const uint8_t>();
}

// The four hexadecimal digits behind `mark` in the device's name.
bool NumberBehind(const std::string& name, std::string_view mark, USHORT& number) {
    const size_t place = name.find(mark);
    if (place == std::string::npos || name.size() < place + mark.size() + 4) return false;
    const char* digits = name.data() + place + mark.size();
    const auto [end, error] = std::from_chars(digits, digits + 4, number, 16);
    return error == std::errc() && end == digits + 4;
}

std::string NameOf(HANDLE device) {
    alignas(FILE_NAME_INFO) std::array<uint8_t, 1024> buffer{};
    if (!GetFileInformationByHandleEx(device, FileNameInfo, buffer.data(), buffer.size()))
        return {};
    const auto* info = reinterpret_cast<const FILE_NAME_INFO*>(buffer.data());
    std::string name;
    for (DWORD i = 0; i < info->FileNameLength / sizeof(WCHAR); ++i) {
        name += static_cast<char>(info->FileName[i]);
    }
    return name;
}

}  // namespace

extern "C" {

void WINAPI HidD_GetHidGuid(LPGUID guid) {
    *guid = {0x4D1E55B2, 0xF16F, 0x11CF, {0x88, 0xCB, 0x00, 0x11, 0x11, 0x00, 0x00, 0x30}};
}

BOOLEAN WINAPI HidD_GetAttributes(HANDLE device, PHIDD_ATTRIBUTES attributes) {
    const std::string name = NameOf(device);
    attributes->VersionNumber = 0x0100;
    return NumberBehind(name, "vid_", attributes->VendorID) &&
           NumberBehind(name, "pid_", attributes->ProductID);
}

BOOLEAN WINAPI HidD_SetFeature(HANDLE device, PVOID report, ULONG length) {
    Message request, answer;
    if (length >= request.size()) return FALSE;
    request[0] = 'F';
    std::memcpy(&request[1], report, length);
    return !Ask(device, std::span(request).first(length + 1), answer).empty();
}

BOOLEAN WINAPI HidD_GetFeature(HANDLE device, PVOID report, ULONG length) {
    const uint8_t request[] = {'G'};
    Message answer;
    const auto positions = Ask(device, request, answer);
    if (positions.empty()) return FALSE;
    std::memcpy(report, positions.data() + 1, std::min<size_t>(length, positions.size() - 1));
    return TRUE;
}

BOOLEAN WINAPI HidD_SetNumInputBuffers(HANDLE device, ULONG) {
    // Else reports that wait would be read as one.
    DWORD mode = PIPE_READMODE_MESSAGE;
    if (!SetNamedPipeHandleState(device, &mode, nullptr, nullptr)) return FALSE;
    const uint8_t request[] = {'S'};
    Message answer;
    return !Ask(device, request, answer).empty();
}

}  // extern "C"
