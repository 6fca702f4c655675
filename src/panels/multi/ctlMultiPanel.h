#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "panels/multi/MultiPanelPicture.h"
#include "panels/multi/MultiPanelReport.h"
#include "simlink/devices/ButtonPress.h"
#include "simlink/devices/FeatureReport.h"
#include "simlink/devices/PulsePair.h"
#include "simlink/devices/SpeedSampler.h"
#include "simlink/devices/cPanelDevice.h"

// Device object of one Multi Panel: turns its reports into events, writes its displays and lights,
// and mirrors all of it in the picture. Buttons are told by their mask, selector positions by their
// bit of the state word.
class ctlMultiPanel final : public cPanelDevice {
  public:
    ctlMultiPanel(Container& parent, const DeviceServices& services);
    ~ctlMultiPanel() override;

    Event<int32_t> ButtonClick;      // at the release of a short press
    Event<int32_t> ButtonLongClick;  // when a held button passes the click threshold
    Event<int32_t> ButtonDown;
    Event<int32_t> ButtonUp;
    Event<int16_t> RotaryUp;  // a clockwise step of the knob, and its speed: 1, 5, 10 or 20
    Event<int16_t> RotaryDown;
    Event<int16_t> TrimUp;  // a step of the wheel, and its speed
    Event<int16_t> TrimDown;
    Event<> FlapsUp;
    Event<> FlapsDown;
    Event<int32_t, int32_t> SelectorChange;  // new and old position
    Event<bool> AutoThrottleChange;          // true is ARM

    // How long a period of the speed sampling is: value x 3 + 50 ms for the knob, value x 3 ms for
    // the wheel, where 0 stops the sampling. The longer, the sooner a speed counts as fast.
    void RotAcceleration(uint8_t value);
    void TrimAcceleration(uint8_t value);

    void TurnOff() override { TurnOffDisplay(); }
    void TurnOffDisplay();
    void Splash() override;

    // Shows what is given and leaves the rest as it is. `Lights`: bit 0 AP to bit 7 REV. Sends a
    // report only if the panel doesn't show all this already, or with `Force`.
    void WriteDisplay(std::optional<std::string_view> UpperRow = std::nullopt,
                      std::optional<std::string_view> LowerRow = std::nullopt,
                      std::optional<uint8_t> Lights = std::nullopt, bool Force = false);

    MultiPanelPicture OnScreen{*this};

  private:
    // A pulse bit, and what its steps do.
    struct Pulses {
        int32_t bit;
        PulsePair pair;
        SpeedSampler& speed;
        Event<int16_t>& step;
        void (MultiPanelPicture::*show)();
    };

    void HandleReport(const Change& change, uint32_t clock) override;
    void ReadPositions() override;
    void Connected() override { rotSpeed_.Start(); }
    void CheckPulse(Pulses& pulses, int32_t state, uint32_t clock);
    void CheckButton(int32_t mask, const Change& change, uint32_t clock);
    void CheckFlaps(int32_t mask, const Change& change);
    void TakeAutoThrottle(int32_t state);
    void TakeSelector(int32_t bits, int32_t before);

    FeatureReport<kMultiReportSize> display_;
    SpeedSampler rotSpeed_;
    SpeedSampler trimSpeed_;
    std::array<Pulses, 4> pulses_;
    ButtonPress press_;
};
