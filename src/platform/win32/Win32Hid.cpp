#include "platform/win32/Win32Hid.h"

#include <algorithm>
#include <array>
#include <vector>

#include "platform/win32/Win32Handle.h"
#include "platform/win32/Win32HidLibrary.h"

namespace {

constexpr size_t kLongestReport = 64;  // of a panel

}  // namespace

Win32Hid::Win32Hid(std::shared_ptr<const Win32HidLibrary> library) : library_(std::move(library)) {}

uintptr_t Win32Hid::Open(const std::string& path) {
    SECURITY_ATTRIBUTES attributes{};
    attributes.nLength = sizeof attributes;
    attributes.bInheritHandle = TRUE;
    Win32Handle device(CreateFileA(path.c_str(), GENERIC_READ | GENERIC_WRITE,
                                   FILE_SHARE_READ | FILE_SHARE_WRITE, &attributes, OPEN_EXISTING,
                                   0, nullptr));
    return ToNumber(device.Release());
}

bool Win32Hid::SetFeature(uintptr_t handle, std::span<const uint8_t> report) {
    if (handle == 0 || !library_->setFeature) return false;
    // The system's declaration asks for a buffer that it may write to.
    std::array<uint8_t, kLongestReport> buffer;
    if (report.size() > buffer.size()) return false;
    std::ranges::copy(report, buffer.begin());
    return library_->setFeature(ToHandle(handle), buffer.data(),
                                static_cast<ULONG>(report.size())) != 0;
}

bool Win32Hid::GetFeature(uintptr_t handle, std::span<uint8_t> report) {
    if (handle == 0 || !library_->getFeature) return false;
    std::vector<uint8_t> buffer(report.begin(), report.end());
    if (!library_->getFeature(ToHandle(handle), buffer.data(), static_cast<ULONG>(buffer.size()))) {
        return false;
    }
    std::copy(buffer.begin(), buffer.end(), report.begin());
    return true;
}

void Win32Hid::Close(uintptr_t handle) {
    if (handle != 0) CloseHandle(ToHandle(handle));
}
