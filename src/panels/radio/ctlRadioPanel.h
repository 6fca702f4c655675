#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>

#include "panels/radio/RadioPanelPicture.h"
#include "panels/radio/RadioPanelReport.h"
#include "simlink/devices/ButtonPress.h"
#include "simlink/devices/FeatureReport.h"
#include "simlink/devices/PulsePair.h"
#include "simlink/devices/SpeedSampler.h"
#include "simlink/devices/cPanelDevice.h"

// Device object of one Radio Panel: turns its reports into events, writes its four displays, and
// mirrors all of it in the picture. Sides are 1 upper and 2 lower. Buttons are told by their mask,
// selector positions by their bit of the state word, knobs by number: 0 upper inner, 1 upper outer,
// 2 lower inner, 3 lower outer.
class ctlRadioPanel final : public cPanelDevice {
  public:
    ctlRadioPanel(Container& parent, const DeviceServices& services);
    ~ctlRadioPanel() override;

    Event<int32_t> ButtonClick;      // at the release of a short press
    Event<int32_t> ButtonLongClick;  // when a held button passes the click threshold
    Event<int32_t> ButtonDown;
    // At every release, after the click; once more after a long click that comes too late for it,
    // and of buttons that are up when the positions are read.
    Event<int32_t> ButtonUp;
    Event<int32_t, int16_t> RotaryUp;    // a clockwise step of a knob, and its speed: 1, 5, 10, 20
    Event<int32_t, int16_t> RotaryDown;  // the same, counter-clockwise
    Event<int16_t, int32_t, int32_t> SelectorChange;  // side, new and old position

    // A period of the side's speed sampling lasts value x 3 + 50 ms, 0 or less of which stops the
    // sampling. The longer, the sooner a speed counts as fast. Other sides are ignored.
    void SetAcceleration(uint8_t Side, int16_t value);

    void TurnOff() override { TurnOffDisplay(); }
    void TurnOffDisplay();
    void Splash() override;

    // Shows the texts that are given and leaves the other displays as they are. Sends a report only
    // if the panel doesn't show all this already.
    void WriteDisplay(std::optional<std::string_view> Active1,
                      std::optional<std::string_view> StandBy1,
                      std::optional<std::string_view> Active2,
                      std::optional<std::string_view> StandBy2);

    RadioPanelPicture OnScreen{*this};

  private:
    static constexpr uint32_t kPulseWindowMs = 200;

    // Both directions of a knob's ring.
    struct Ring {
        PulsePair up{kPulseWindowMs};
        PulsePair down{kPulseWindowMs};
    };

    void HandleReport(const Change& change, uint32_t clock) override;
    void ReadPositions() override;
    void Connected() override;
    void CheckRotary(size_t knob, int32_t state, uint32_t clock);
    void TakeSelector(size_t side, const Change& change);
    void CheckButton(size_t side, const Change& change, uint32_t clock);
    void TakeLongClick(int32_t mask);

    FeatureReport<kRadioReportSize> display_;
    std::array<Ring, kRadioKnobBits.size()> rings_;
    std::array<SpeedSampler, 2> rotSpeed_;  // of the sides: both rings and directions count
    ButtonPress press_;
};
