#include "platform/win32/Win32PanelEnumerator.h"

#include <algorithm>
#include <cstddef>

#include "base/Text.h"
#include "platform/win32/Win32Handle.h"
#include "platform/win32/Win32HidLibrary.h"
#include "platform/win32/Win32SetupLibrary.h"

namespace {

// No machine has as many; ends a list that a broken driver lets run on for ever.
constexpr DWORD kMostInterfaces = 4096;

bool ReadAttributes(const Win32HidLibrary& hid, const std::string& path, DWORD access,
                    HIDD_ATTRIBUTES& attributes) {
    const Win32Handle device(CreateFileA(path.c_str(), access, FILE_SHARE_READ | FILE_SHARE_WRITE,
                                         nullptr, OPEN_EXISTING, 0, nullptr));
    attributes = {};
    attributes.Size = sizeof attributes;
    return device && hid.getAttributes(device.Get(), &attributes);
}

std::string PathOfInterface(const Win32SetupLibrary& setup, HDEVINFO list,
                            SP_DEVICE_INTERFACE_DATA& interfaceData) {
    DWORD size = 0;
    setup.getDeviceInterfaceDetail(list, &interfaceData, nullptr, 0, &size, nullptr);
    constexpr size_t kPathOffset = offsetof(SP_DEVICE_INTERFACE_DETAIL_DATA_A, DevicePath);
    if (size <= kPathOffset) return {};
    // Of the record's own type, so that it lies as that has to; a NUL more than the system needs.
    std::vector<SP_DEVICE_INTERFACE_DETAIL_DATA_A> buffer(
        size / sizeof(SP_DEVICE_INTERFACE_DETAIL_DATA_A) + 2);
    buffer[0].cbSize = sizeof buffer[0];
    if (!setup.getDeviceInterfaceDetail(list, &interfaceData, buffer.data(), size, nullptr,
                                        nullptr)) {
        return {};
    }
    return reinterpret_cast<const char*>(buffer.data()) + kPathOffset;
}

}  // namespace

Win32PanelEnumerator::Win32PanelEnumerator(std::shared_ptr<const Win32HidLibrary> hid,
                                           std::unique_ptr<const Win32SetupLibrary> setup)
    : hid_(std::move(hid)), setup_(std::move(setup)) {}

Win32PanelEnumerator::~Win32PanelEnumerator() = default;

int16_t Win32PanelEnumerator::CountPanels(int32_t vendorId, int32_t productId) {
    paths_ = HidPaths();
    std::erase_if(paths_,
                  [&](const std::string& path) { return !IsOfKind(path, vendorId, productId); });
    std::sort(paths_.begin(), paths_.end(),
              [](const std::string& a, const std::string& b) { return ToLower(a) < ToLower(b); });
    return static_cast<int16_t>(paths_.size());
}

std::string Win32PanelEnumerator::GetPanelPath(int16_t index) {
    if (index < 1 || static_cast<size_t>(index) > paths_.size()) return {};
    return paths_[static_cast<size_t>(index) - 1];
}

std::vector<std::string> Win32PanelEnumerator::HidPaths() const {
    GUID hidClass{};
    hid_->getHidGuid(&hidClass);
    const HDEVINFO list =
        setup_->getClassDevs(&hidClass, nullptr, nullptr, DIGCF_PRESENT | DIGCF_DEVICEINTERFACE);
    std::vector<std::string> paths;
    if (list == INVALID_HANDLE_VALUE) return paths;
    for (DWORD i = 0; i < kMostInterfaces; ++i) {
        SP_DEVICE_INTERFACE_DATA interfaceData{};
        interfaceData.cbSize = sizeof interfaceData;
        if (!setup_->enumDeviceInterfaces(list, nullptr, &hidClass, i, &interfaceData)) break;
        std::string path = PathOfInterface(*setup_, list, interfaceData);
        if (!path.empty()) paths.push_back(std::move(path));
    }
    setup_->destroyDeviceInfoList(list);
    return paths;
}

bool Win32PanelEnumerator::IsOfKind(const std::string& path, int32_t vendorId,
                                    int32_t productId) const {
    HIDD_ATTRIBUTES attributes{};
    // Without access rights first: that opens what others hold for themselves alone.
    if (!ReadAttributes(*hid_, path, 0, attributes) &&
        !ReadAttributes(*hid_, path, GENERIC_READ | GENERIC_WRITE, attributes)) {
        return false;
    }
    return attributes.VendorID == vendorId && attributes.ProductID == productId;
}
