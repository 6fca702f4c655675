#include "platform/win32/Win32PanelLink.h"

#include <algorithm>

#include "platform/ReportInbox.h"
#include "platform/win32/Win32HidLibrary.h"
#include "platform/win32/Win32PanelReader.h"

namespace {

constexpr size_t kReportSize = 4;
// So much of a turn of the loop for one panel: four of them leave the tick its 10 ms.
constexpr std::chrono::milliseconds kTurn{2};

// So many that a busy moment drops no pulse of a knob.
constexpr ULONG kInputBuffers = 512;

Win32Handle OpenForReading(const std::string& path) {
    for (const DWORD access : {GENERIC_READ | GENERIC_WRITE, GENERIC_READ}) {
        Win32Handle device(CreateFileA(path.c_str(), access, FILE_SHARE_READ | FILE_SHARE_WRITE,
                                       nullptr, OPEN_EXISTING, FILE_FLAG_OVERLAPPED, nullptr));
        if (device) return device;
    }
    return {};
}

}  // namespace

Win32PanelLink::Win32PanelLink(MessageLoop& loop, std::shared_ptr<const Win32HidLibrary> hid)
    : loop_(loop), hid_(std::move(hid)) {}

Win32PanelLink::~Win32PanelLink() { StopReading(); }

void Win32PanelLink::StartReading() {
    if (reader_) return;
    Win32Handle device = OpenForReading(DeviceAddress);
    if (!device) return;
    if (hid_->setNumInputBuffers) hid_->setNumInputBuffers(device.Get(), kInputBuffers);

    inbox_ = std::make_shared<ReportInbox>(
        loop_,
        [this](const ReportInbox::Report& report) {
            ReportClock = report.clock;
            const auto& [b0, b1, b2, b3] = report.bytes;
            RawInput.Raise(b0, b1, b2, b3);
        },
        kTurn);
    const auto received = [inbox = inbox_](std::span<const uint8_t> bytes) {
        // The system hands over as many whole reports as fit; what is no multiple of their size is
        // one longer report.
        const size_t count = bytes.size() % kReportSize == 0 ? bytes.size() / kReportSize : 1;
        ReportInbox::Report report{{}, ::GetTickCount()};
        for (size_t i = 0; i < count && bytes.size() >= kReportSize; ++i) {
            std::ranges::copy(bytes.subspan(i * kReportSize, kReportSize), report.bytes.begin());
            inbox->Put(report);
        }
    };
    reader_ = std::make_unique<Win32PanelReader>(
        std::move(device),
        Win32PanelReader::Settings{static_cast<DWORD>(std::max(ReadWait, 1)), Priority, Affinity},
        received);
}

void Win32PanelLink::StopReading() {
    if (inbox_) inbox_->Close();
    inbox_.reset();
    reader_.reset();
}
