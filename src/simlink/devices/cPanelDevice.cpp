#include "simlink/devices/cPanelDevice.h"

#include <utility>

namespace {

constexpr int32_t kReadWaitMs = 1500;
constexpr uint32_t kMostTellingMs = 1000;
constexpr int32_t kPictureWidth = 10905;
constexpr int32_t kPictureHeight = 2865;

}  // namespace

cPanelDevice::cPanelDevice(Container& parent, const DeviceServices& services, PanelKind kind)
    : Picture(&parent),
      outputs_(services.hid, ReportSent),
      services_{services.clock, services.loop, outputs_, services.deckhub, services.generalSetup},
      kind_(kind),
      timerWaiting_(services.loop, kMostTellingMs) {
    Move(0, 0, kPictureWidth, kPictureHeight);
    cmdSetup.Caption = "Setup";
    cmdSetup.ToolTip = "Click to open the setup form for this panel";
    cmdSetup.Move(9780, 2460, 1005, 330);
    cmdSetup.Click.Connect([this] { SetupRequest.Raise(); });
    timerWaiting_.Tick.Connect([this] { TellWaiting(); });
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

// Looked at as it comes, so that presses and pulses have their own time, whatever waits to be told.
void cPanelDevice::TakeReport(uint8_t byte0, uint8_t byte1, uint8_t byte2, uint8_t byte3) {
    const uint32_t clock = link_->ReportClock;
    const int32_t state = StateWord(byte1, byte2, byte3);
    RawInput.Raise(byte0, byte1, byte2, byte3);
    const bool first = std::exchange(firstReportPending_, false);
    HandleReport({std::exchange(lastState_, state), state, first}, clock);
    TellWaiting();
}

void cPanelDevice::GetPositions() {
    ReadPositions();
    TellWaiting();
}

// One after the other; but a box that a listener opens must not hold the panel up for as long as it
// stands.
void cPanelDevice::TellWaiting() {
    const uint32_t told = services_.clock.GetTickCount() - tellingSince_;
    if (telling_ && told < kMostTellingMs) {
        timerWaiting_.SetInterval(kMostTellingMs - told);
        timerWaiting_.SetEnabled(true);
        return;
    }
    timerWaiting_.SetEnabled(false);
    const bool within = std::exchange(telling_, true);
    const uint32_t since = tellingSince_;
    while (!acts_.empty()) {
        const Call act = acts_[told_++];
        if (told_ == acts_.size()) ForgetActs();
        tellingSince_ = services_.clock.GetTickCount();
        act();
    }
    timerWaiting_.SetEnabled(false);
    telling_ = within;
    tellingSince_ = since;
}

void cPanelDevice::ForgetActs() {
    acts_.clear();
    told_ = 0;
}

void cPanelDevice::End() {
    if (link_) TurnOff();
    Disconnect();
}

void cPanelDevice::Disconnect() {
    if (ended_) return;
    ended_ = true;
    ForgetActs();
    timerWaiting_.SetEnabled(false);
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
