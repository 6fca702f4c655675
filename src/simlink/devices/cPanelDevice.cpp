#include "simlink/devices/cPanelDevice.h"

#include <utility>

namespace {

constexpr int32_t kReadWaitMs = 1500;
constexpr uint32_t kHandlingMs = 1000;
constexpr int32_t kPictureWidth = 10905;
constexpr int32_t kPictureHeight = 2865;

}  // namespace

cPanelDevice::cPanelDevice(Container& parent, const DeviceServices& services, PanelKind kind)
    : Picture(&parent), services_(services), kind_(kind) {
    Move(0, 0, kPictureWidth, kPictureHeight);
    cmdSetup.Caption = "Setup";
    cmdSetup.ToolTip = "Click to open the setup form for this panel";
    cmdSetup.Move(9780, 2460, 1005, 330);
    cmdSetup.Click.Connect([this] { SetupRequest.Raise(); });
}

cPanelDevice::~cPanelDevice() { Disconnect(); }

bool cPanelDevice::Connect(const std::string& DevicePathName) {
    link_ = services_.deckhub.CreateLink();
    link_->RawInput.Connect([this](uint8_t byte0, uint8_t byte1, uint8_t byte2, uint8_t byte3) {
        TakeReport(byte0, byte1, byte2, byte3);
    });
    if (kind_ == PanelKind::Switch || kind_ == PanelKind::BIP) {
        link_->Priority = services_.generalSetup.DeckhubPriority;
        link_->Affinity = services_.generalSetup.DeckhubAffinity;
    }
    link_->ReadWait = kReadWaitMs;
    link_->DeviceAddress = DevicePathName;
    link_->StartReading();
    deviceHandle_ = services_.hid.Open(DevicePathName);
    Connected();
    return true;
}

void cPanelDevice::TakeReport(uint8_t byte0, uint8_t byte1, uint8_t byte2, uint8_t byte3) {
    waiting_.push_back({StateWord(byte1, byte2, byte3), link_->ReportClock});
    RawInput.Raise(byte0, byte1, byte2, byte3);
    HandleWaiting();
}

void cPanelDevice::GetPositions() {
    const bool within = std::exchange(handling_, true);
    const uint32_t since = std::exchange(handlingSince_, services_.clock.GetTickCount());
    ReadPositions();
    handling_ = within;
    handlingSince_ = since;
    HandleWaiting();
}

// One report after the other, each as a whole; but a box that something opens on the way must not
// hold the panel up for as long as it stands.
void cPanelDevice::HandleWaiting() {
    const uint32_t now = services_.clock.GetTickCount();
    if (handling_ && now - handlingSince_ < kHandlingMs) return;
    const bool within = std::exchange(handling_, true);
    const uint32_t since = handlingSince_;
    while (!waiting_.empty()) {
        const auto [state, clock] = waiting_.front();
        waiting_.pop_front();
        const bool first = std::exchange(firstReportPending_, false);
        handlingSince_ = services_.clock.GetTickCount();
        HandleReport({std::exchange(lastState_, state), state, first}, clock);
    }
    handling_ = within;
    handlingSince_ = since;
}

void cPanelDevice::End() {
    if (link_) TurnOff();
    Disconnect();
}

void cPanelDevice::Disconnect() {
    if (ended_) return;
    ended_ = true;
    waiting_.clear();
    MessageLoop& loop = services_.loop;
    if (link_) {
        loop.RunPending();
        link_->StopReading();
        loop.RunPending();
        link_.reset();
    }
    loop.RunPending();
    services_.hid.Close(deviceHandle_);
    deviceHandle_ = 0;
    loop.RunPending();
}

void cPanelDevice::Resized() {
    Width = kPictureWidth;
    Height = kPictureHeight;
}
