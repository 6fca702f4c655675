#include "platform/win32/Win32Deckhub.h"

#include "platform/win32/Win32HidLibrary.h"
#include "platform/win32/Win32PanelEnumerator.h"
#include "platform/win32/Win32PanelLink.h"
#include "platform/win32/Win32SetupLibrary.h"

Win32Deckhub::Win32Deckhub(MessageLoop& loop, std::shared_ptr<const Win32HidLibrary> hid)
    : loop_(loop), hid_(std::move(hid)) {}

std::unique_ptr<PanelEnumerator> Win32Deckhub::CreateEnumerator() {
    auto setup = std::make_unique<Win32SetupLibrary>();
    if (!setup->IsComplete() || !hid_->IsComplete()) return nullptr;
    return std::make_unique<Win32PanelEnumerator>(hid_, std::move(setup));
}

std::unique_ptr<PanelLink> Win32Deckhub::CreateLink() {
    return std::make_unique<Win32PanelLink>(loop_, hid_);
}
