#include "platform/win32/Win32Hid.h"

#include <algorithm>

#include "platform/win32/Win32Handle.h"
#include "platform/win32/Win32HidLibrary.h"
#include "platform/win32/Win32PanelWriter.h"

Win32Hid::Win32Hid(std::shared_ptr<const Win32HidLibrary> library) : library_(std::move(library)) {}

Win32Hid::~Win32Hid() = default;

uintptr_t Win32Hid::Open(const std::string& path) {
    SECURITY_ATTRIBUTES attributes{};
    attributes.nLength = sizeof attributes;
    attributes.bInheritHandle = TRUE;
    Win32Handle device(CreateFileA(path.c_str(), GENERIC_READ | GENERIC_WRITE,
                                   FILE_SHARE_READ | FILE_SHARE_WRITE, &attributes, OPEN_EXISTING,
                                   0, nullptr));
    if (!device) return 0;
    writers_.push_back(std::make_unique<Win32PanelWriter>(std::move(device), library_));
    return writers_.back()->Number();
}

bool Win32Hid::SetFeature(uintptr_t handle, std::span<const uint8_t> report) {
    Win32PanelWriter* writer = WriterOf(handle);
    return writer && writer->SetFeature(report);
}

bool Win32Hid::GetFeature(uintptr_t handle, std::span<uint8_t> report) {
    Win32PanelWriter* writer = WriterOf(handle);
    return writer && writer->GetFeature(report);
}

void Win32Hid::Close(uintptr_t handle) {
    std::erase_if(writers_, [handle](const auto& writer) { return writer->Number() == handle; });
}

Win32PanelWriter* Win32Hid::WriterOf(uintptr_t handle) const {
    const auto found = std::ranges::find_if(
        writers_, [handle](const auto& writer) { return writer->Number() == handle; });
    return found == writers_.end() ? nullptr : found->get();
}
