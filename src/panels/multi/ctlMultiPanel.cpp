#include "panels/multi/ctlMultiPanel.h"

#include <algorithm>
#include <array>

#include "platform/Wait.h"

namespace {

constexpr int32_t kSelectorMask = 0x1F0000;
constexpr uint32_t kKnobWindowMs = 200;
constexpr uint32_t kTrimWindowMs = 250;
constexpr uint32_t kSpeedPeriodMs = 200;
constexpr SpeedSampler::Thresholds kKnobThresholds = {10, 13, 16};
constexpr SpeedSampler::Thresholds kTrimThresholds = {5, 9, 12};

// The order in which a report's buttons are looked at.
constexpr std::array kButtonOrder = {
    MultiPanelBit::kButtonAP,  MultiPanelBit::kButtonHDG, MultiPanelBit::kButtonNAV,
    MultiPanelBit::kButtonREV, MultiPanelBit::kButtonALT, MultiPanelBit::kButtonVS,
    MultiPanelBit::kButtonAPR, MultiPanelBit::kButtonIAS,
};

std::span<uint8_t, 5> Digits(std::array<uint8_t, kMultiReportSize>& report, size_t first) {
    return std::span<uint8_t, 5>(report.data() + first, 5);
}

}  // namespace

ctlMultiPanel::ctlMultiPanel(Container& parent, const DeviceServices& services)
    : cPanelDevice(parent, services, PanelKind::Multi),
      rotSpeed_(services.clock, services.loop, kSpeedPeriodMs, kKnobThresholds),
      trimSpeed_(services.clock, services.loop, kSpeedPeriodMs, kTrimThresholds),
      pulses_{{
          {MultiPanelBit::kKnobClockwisePulse, PulsePair(kKnobWindowMs), rotSpeed_, RotaryUp,
           &MultiPanelPicture::KnobClockwise},
          {MultiPanelBit::kKnobCounterClockwisePulse, PulsePair(kKnobWindowMs), rotSpeed_,
           RotaryDown, &MultiPanelPicture::KnobCounterClockwise},
          {MultiPanelBit::kTrimUpPulse, PulsePair(kTrimWindowMs), trimSpeed_, TrimUp,
           &MultiPanelPicture::TrimUp},
          {MultiPanelBit::kTrimDownPulse, PulsePair(kTrimWindowMs), trimSpeed_, TrimDown,
           &MultiPanelPicture::TrimDown},
      }},
      press_(services.clock, services.loop, services.generalSetup.ClickThreshold) {
    std::fill_n(display_.bytes.begin() + kMultiUpperDigits, 10, kMultiBlank);
    press_.LongClick.Connect([this](int32_t mask) {
        Tell(ButtonLongClick, mask);
        TellWaiting();
    });
    rotSpeed_.Sampled.Connect(
        [this](int16_t speed) { OnScreen.ShowSpeed(OnScreen.labSpeed, speed); });
    trimSpeed_.Sampled.Connect(
        [this](int16_t speed) { OnScreen.ShowSpeed(OnScreen.labSpeed2, speed); });
    trimSpeed_.Start();
}

ctlMultiPanel::~ctlMultiPanel() { End(); }

void ctlMultiPanel::RotAcceleration(uint8_t value) { rotSpeed_.SetPeriod(value * 3U + 50U); }

void ctlMultiPanel::TrimAcceleration(uint8_t value) { trimSpeed_.SetPeriod(value * 3U); }

void ctlMultiPanel::HandleReport(const Change& change, uint32_t clock) {
    for (Pulses& pulses : pulses_) CheckPulse(pulses, change.after, clock);
    if (change.first || change.Touches(kSelectorMask)) {
        TakeSelector(change.after & kSelectorMask, change.before & kSelectorMask);
    }
    for (const int32_t mask : kButtonOrder) CheckButton(mask, change, clock);
    CheckFlaps(MultiPanelBit::kFlapsUp, change);
    CheckFlaps(MultiPanelBit::kFlapsDown, change);
    if (change.first || change.Touches(MultiPanelBit::kAutoThrottleArm))
        TakeAutoThrottle(change.after);
}

void ctlMultiPanel::CheckPulse(Pulses& pulses, int32_t state, uint32_t clock) {
    const bool bit = (state & pulses.bit) != 0;
    if (bit) pulses.speed.Pulse(clock);
    if (!pulses.pair.Report(bit, clock)) return;
    (OnScreen.*pulses.show)();
    Tell(pulses.step, pulses.speed.SpeedAt(clock));
}

void ctlMultiPanel::CheckButton(int32_t mask, const Change& change, uint32_t clock) {
    if (!change.Touches(mask)) return;
    if (change.after & mask) {
        Tell(ButtonDown, mask);
        OnScreen.ShowButton(mask, true);
        press_.Down(mask, clock);
        return;
    }
    Tell(ButtonUp, mask);
    OnScreen.ShowButton(mask, false);
    if (!press_.Up(clock)) return;
    press_.Cancel();
    Tell(ButtonClick, mask);
}

void ctlMultiPanel::CheckFlaps(int32_t mask, const Change& change) {
    if (!change.Touches(mask)) return;
    if (!(change.after & mask)) {
        OnScreen.ShowFlaps(0);
    } else if (mask == MultiPanelBit::kFlapsUp) {
        OnScreen.ShowFlaps(1);
        Tell(FlapsUp);
    } else {
        OnScreen.ShowFlaps(-1);
        Tell(FlapsDown);
    }
}

void ctlMultiPanel::TakeAutoThrottle(int32_t state) {
    const bool armed = (state & MultiPanelBit::kAutoThrottleArm) != 0;
    OnScreen.ShowAutoThrottle(armed);
    Tell(AutoThrottleChange, armed);
}

void ctlMultiPanel::TakeSelector(int32_t bits, int32_t before) {
    OnScreen.ShowSelector(bits);
    Tell(SelectorChange, bits, before);
    Then([this] { WriteDisplay(); });  // a report that is waiting goes out
}

void ctlMultiPanel::ReadPositions() {
    std::array<uint8_t, kMultiReportSize> report{};
    Services().hid.GetFeature(DeviceHandle(), report);
    const int32_t bits = StateWord(report[1], report[2], report[3]) & kSelectorMask;
    TakeSelector(bits, 0);
}

void ctlMultiPanel::WriteDisplay(std::optional<std::string_view> UpperRow,
                                 std::optional<std::string_view> LowerRow,
                                 std::optional<uint8_t> Lights, bool Force) {
    if (UpperRow) {
        EncodeDisplay(*UpperRow, Digits(display_.bytes, kMultiUpperDigits));
        OnScreen.labUpperValue.Caption = *UpperRow;
    }
    if (LowerRow) {
        EncodeDisplay(*LowerRow, Digits(display_.bytes, kMultiLowerDigits));
        OnScreen.labLowerValue.Caption = *LowerRow;
    }
    if (Lights) {
        display_.bytes[kMultiLights] = *Lights;
        OnScreen.ShowLights(*Lights);
    }
    display_.WriteIfChanged(Services().hid, DeviceHandle(), Force);
}

void ctlMultiPanel::TurnOffDisplay() {
    std::fill_n(display_.bytes.begin() + kMultiUpperDigits, 10, kMultiDark);
    display_.bytes[kMultiLights] = 0;
    display_.WriteDark(Services().hid, DeviceHandle());
}

// A "0" runs through the upper display from right to left and back through the lower one, while
// the lights come on one after the other.
void ctlMultiPanel::Splash() {
    constexpr int kSteps = 10;
    for (int step = 0; step < kSteps; ++step) {
        std::array<char, 10> rows;
        rows.fill(' ');
        rows[static_cast<size_t>(step < 5 ? 4 - step : step)] = '0';
        const int lights = step == kSteps - 1 ? 0 : (1 << step) - 1;
        WriteDisplay(std::string_view(rows.data(), 5), std::string_view(rows.data() + 5, 5),
                     static_cast<uint8_t>(lights));
        Wait(Services().clock, Services().loop, 100, 25);
    }
    WriteDisplay("     ", "     ", uint8_t{0});
    TurnOffDisplay();
}
