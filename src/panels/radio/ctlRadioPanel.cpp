#include "panels/radio/ctlRadioPanel.h"

#include <algorithm>
#include <string>

#include "platform/Wait.h"

namespace {

constexpr uint32_t kSpeedPeriodMs = 100;
constexpr SpeedSampler::Thresholds kThresholds = {10, 13, 16};
constexpr int16_t kTurnDegrees = 15;
constexpr size_t kSides = 2;

constexpr int SideNumber(size_t side) { return static_cast<int>(side) + 1; }

}  // namespace

ctlRadioPanel::ctlRadioPanel(Container& parent, const DeviceServices& services)
    : cPanelDevice(parent, services, PanelKind::Radio),
      rotSpeed_{SpeedSampler(services.clock, services.loop, kSpeedPeriodMs, kThresholds),
                SpeedSampler(services.clock, services.loop, kSpeedPeriodMs, kThresholds)},
      press_(services.clock, services.loop, services.generalSetup.ClickThreshold) {
    std::fill_n(display_.bytes.begin() + RadioFirstByte(0), kRadioDisplays * kRadioDigits,
                kRadioDark);
    press_.LongClick.Connect([this](int32_t mask) { TakeLongClick(mask); });
    for (size_t side = 0; side < kSides; ++side) {
        rotSpeed_[side].Sampled.Connect(
            [this, side](int16_t speed) { OnScreen.ShowSpeed(SideNumber(side), speed); });
    }
}

ctlRadioPanel::~ctlRadioPanel() { End(); }

void ctlRadioPanel::Connected() {
    for (SpeedSampler& speed : rotSpeed_) speed.Start();
}

void ctlRadioPanel::SetAcceleration(uint8_t Side, int16_t value) {
    if (Side < 1 || Side > kSides) return;
    rotSpeed_[Side - 1U].SetPeriod(static_cast<uint32_t>(std::max(value * 3 + 50, 0)));
}

void ctlRadioPanel::HandleReport(const Change& change, uint32_t clock) {
    for (size_t knob = 0; knob < rings_.size(); ++knob) CheckRotary(knob, change.after, clock);
    for (size_t side = 0; side < kSides; ++side) {
        if (change.first || change.Touches(kRadioSelectorMasks[side])) TakeSelector(side, change);
    }
    for (size_t side = 0; side < kSides; ++side) CheckButton(side, change, clock);
}

void ctlRadioPanel::CheckRotary(size_t knob, int32_t state, uint32_t clock) {
    const auto rotary = static_cast<int32_t>(knob);
    SpeedSampler& speed = rotSpeed_[knob / 2];
    const auto check = [&](int32_t bit, PulsePair& pair, int16_t degrees,
                           Event<int32_t, int16_t>& step) {
        const bool set = (state & bit) != 0;
        if (set) speed.Pulse(clock);
        if (!pair.Report(set, clock)) return;
        OnScreen.TurnRotary(rotary, degrees);
        Tell(step, rotary, speed.SpeedAt(clock));
    };
    check(kRadioKnobBits[knob].clockwise, rings_[knob].up, kTurnDegrees, RotaryUp);
    check(kRadioKnobBits[knob].counterClockwise, rings_[knob].down, -kTurnDegrees, RotaryDown);
}

void ctlRadioPanel::TakeSelector(size_t side, const Change& change) {
    const int32_t mask = kRadioSelectorMasks[side];
    OnScreen.ShowSelector(SideNumber(side), change.after & mask);
    Tell(SelectorChange, static_cast<int16_t>(SideNumber(side)), change.after & mask,
         change.before & mask);
}

void ctlRadioPanel::CheckButton(size_t side, const Change& change, uint32_t clock) {
    const int32_t mask = kRadioButtonBits[side];
    if (!change.Touches(mask)) return;
    const bool down = (change.after & mask) != 0;
    OnScreen.ShowButton(SideNumber(side), down);
    if (down) {
        Tell(ButtonDown, mask);
        press_.Down(mask, clock);
        return;
    }
    if (press_.Up(clock)) {
        press_.Cancel();
        Tell(ButtonClick, mask);
    }
    Tell(ButtonUp, mask);
}

// The long click may come when the button is up again. What it then holds down has to be let go.
void ctlRadioPanel::TakeLongClick(int32_t mask) {
    const bool released = (LastState() & mask) == 0;
    Tell(ButtonLongClick, mask);
    if (released) Tell(ButtonUp, mask);
    TellWaiting();
}

void ctlRadioPanel::ReadPositions() {
    std::array<uint8_t, kRadioReportSize> report{};
    const bool read = Services().hid.GetFeature(DeviceHandle(), report);
    const Change change = {0, StateWord(report[1], report[2], report[3]), false};
    for (size_t side = 0; side < kSides; ++side) TakeSelector(side, change);
    // What was held when the session before was lost may have come up since.
    for (const int32_t mask : kRadioButtonBits) {
        if (read && !(change.after & mask)) Tell(ButtonUp, mask);
    }
}

void ctlRadioPanel::WriteDisplay(std::optional<std::string_view> Active1,
                                 std::optional<std::string_view> StandBy1,
                                 std::optional<std::string_view> Active2,
                                 std::optional<std::string_view> StandBy2) {
    const auto show = [this](RadioDisplay display, std::optional<std::string_view> text,
                             Label& label) {
        if (!text) return;
        const std::span<uint8_t, kRadioDigits> digits(
            display_.bytes.data() + RadioFirstByte(display), kRadioDigits);
        RadioPanelReport::EncodeDisplay(*text, digits);
        std::string caption(*text);
        std::ranges::replace(caption, ',', '.');
        label.Caption = caption;
    };
    show(kRadioActive1, Active1, OnScreen.At(1).labActive);
    show(kRadioStandby1, StandBy1, OnScreen.At(1).labStandby);
    show(kRadioActive2, Active2, OnScreen.At(2).labActive);
    show(kRadioStandby2, StandBy2, OnScreen.At(2).labStandby);
    display_.WriteIfChanged(Services().hid, DeviceHandle(), false);
}

void ctlRadioPanel::TurnOffDisplay() {
    for (const int side : {1, 2}) {
        OnScreen.At(side).labActive.Caption = "";
        OnScreen.At(side).labStandby.Caption = "";
    }
    std::fill(display_.bytes.begin() + 1, display_.bytes.end(), kRadioDark);
    display_.WriteDark(Services().hid, DeviceHandle());
}

// A "0" runs round the four displays, to the left through the upper ones and to the right through
// the lower ones.
void ctlRadioPanel::Splash() {
    constexpr RadioDisplay kWay[] = {kRadioStandby1, kRadioActive1, kRadioActive2, kRadioStandby2};
    for (const RadioDisplay display : kWay) {
        for (size_t step = 0; step < kRadioDigits; ++step) {
            std::array<char, kRadioDisplays * kRadioDigits> texts;
            texts.fill(' ');
            const bool upper = display < kRadioActive2;
            texts[display * kRadioDigits + (upper ? kRadioDigits - 1 - step : step)] = '0';
            const auto text = [&](RadioDisplay which) {
                return std::string_view(&texts[which * kRadioDigits], kRadioDigits);
            };
            WriteDisplay(text(kRadioActive1), text(kRadioStandby1), text(kRadioActive2),
                         text(kRadioStandby2));
            Wait(Services().clock, Services().loop, 60, 30);
        }
    }
    TurnOffDisplay();
}
