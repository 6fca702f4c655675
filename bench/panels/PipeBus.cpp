#include "bench/panels/PipeBus.h"

#include <windows.h>

#include <fstream>

#include "base/Text.h"
#include "bench/console/Command.h"

namespace bench {

namespace {

constexpr ULONGLONG kPlugTimeMs = 2000;

// The device's threads have only been started: its pipe may not be there yet.
bool WaitForPipe(const std::string& path) {
    const ULONGLONG end = GetTickCount64() + kPlugTimeMs;
    while (!WaitNamedPipeA(path.c_str(), NMPWAIT_USE_DEFAULT_WAIT)) {
        if (GetTickCount64() >= end) return false;
        ::Sleep(5);
    }
    return true;
}

}  // namespace

PipeBus::PipeBus(const std::string& folder) : list_(folder + "\\panels.txt") { WriteList(); }

PipeBus::~PipeBus() { DeleteFileA(list_.c_str()); }

bool PipeBus::PlugIn(std::shared_ptr<VirtualPanel> panel) {
    // hid.dll takes the numbers from the name, since a handle without rights can't ask for them.
    const std::string path = "\\\\.\\pipe\\orvo-bench-vid_" + HexText(kPanelVendor, 4) + "&pid_" +
                             HexText(panel->Kind().productId, 4) + "#" +
                             std::to_string(panel->Number()) + "-" +
                             std::to_string(GetCurrentProcessId());
    auto device = std::make_shared<PipeDevice>(std::move(panel), path);
    if (!WaitForPipe(path)) return false;
    const std::lock_guard hold(lock_);
    devices_.push_back(std::move(device));
    if (WriteList()) return true;
    devices_.pop_back();
    return false;
}

void PipeBus::Unplug(const VirtualPanel& panel) {
    const std::lock_guard hold(lock_);
    std::erase_if(devices_, [&](const auto& device) { return &device->Panel() == &panel; });
    WriteList();
}

int PipeBus::Send(const VirtualPanel& panel, const VirtualPanel::Report& report) {
    const auto device = Find(panel);
    return device ? device->Send(report) : 0;
}

int PipeBus::Readers(const VirtualPanel& panel) {
    const auto device = Find(panel);
    return device ? device->Readers() : 0;
}

void PipeBus::SetAnswerTime(const VirtualPanel& panel, std::chrono::milliseconds time) {
    if (const auto device = Find(panel)) device->SetAnswerTime(time);
}

void PipeBus::Pause(uint32_t milliseconds) { ::Sleep(milliseconds); }

std::shared_ptr<PipeDevice> PipeBus::Find(const VirtualPanel& panel) const {
    const std::lock_guard hold(lock_);
    for (const auto& device : devices_) {
        if (&device->Panel() == &panel) return device;
    }
    return nullptr;
}

bool PipeBus::WriteList() const {
    const std::string fresh = list_ + ".new";
    {
        std::ofstream file(fresh, std::ios::trunc);
        for (const auto& device : devices_) file << device->Path() << "\n";
        if (!file.flush()) return false;
    }
    return MoveFileExA(fresh.c_str(), list_.c_str(), MOVEFILE_REPLACE_EXISTING) != 0;
}

}  // namespace bench
