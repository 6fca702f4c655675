#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <string>

#include "config/ProfileStore.h"
#include "panels/radio/RadioAdf.h"
#include "panels/radio/RadioChannels.h"
#include "panels/radio/RadioDme.h"
#include "panels/radio/RadioPanelOffsets.h"
#include "panels/radio/RadioPosition.h"
#include "panels/radio/RadioTransponder.h"
#include "panels/radio/cRadioPanelActionsHolder.h"
#include "panels/radio/ctlRadioPanel.h"
#include "simlink/actions/HeldButton.h"
#include "simlink/channel/MasterPower.h"
#include "simlink/channel/TickValues.h"
#include "simlink/devices/cPanelLogic.h"

// Behaviour of one Radio Panel: shows the radios' values on the panel's control, and turns its
// events into what the bindings say. StartUp comes before all else. Sides are 1 the upper row and 2
// the lower one, selector positions those of RadioPosition.h; other numbers do nothing. Both rows
// can stand at the same position, and what is tuned there is the same.
class cRadioPanelLogic final : public cPanelLogic {
  public:
    cRadioPanelLogic(const LogicServices& services, ctlRadioPanel& control, int16_t index);

    void StartUp() override;

    void SelectorChange(int16_t Selector, int32_t NewPos, int32_t OldPos);
    // The button's mask, as the control tells it.
    void ButtonClick(int32_t Button);
    void ButtonLongClick(int32_t Button);
    void ButtonUp(int32_t Button);
    // Rotary 0 is the inner ring, 1 the outer; Direction 1 is clockwise.
    void Rotary(int16_t Rotary, int16_t Direction, uint8_t Side, uint8_t Speed);

    const int16_t Index;
    std::unique_ptr<cRadioPanelActionsHolder> RPActions;

  private:
    void Refresh() override;
    void AddPlaces(PlaceSet& places) const override {
        offsets_.AddPlaces(places);
        power_.AddPlaces(places);
    }
    void ApplySetup() override;
    void ReadSetup() override { RPActions->LoadSetup(); }

    struct Row {
        Row(uint8_t number, EventOutput& output) : side(number), held(output) {}

        uint8_t side;
        int32_t selectorPos = RadioPosition::kCOM1;
        uint8_t dmeChoice = 1;  // 1 both distances, 2 DME1, 3 DME2
        std::string active;
        std::string standby;
        HeldButton held;  // from a click until the panel's button comes up
    };

    // The Maddog's NAV radios have no standby frequency.
    bool ActiveOnly(size_t channel) const {
        return session_.SpecialMode == kMaddogMode && kRadioChannels[channel].maddogControl != 0;
    }

    void ApplyAcceleration(const Row& row);
    void ReadRadios();
    void ShowRow(Row& row);
    void ShowChannel(Row& row, size_t channel);

    Row* RowOf(int32_t button);
    void Press(Row& row, const ActionRecord& record, void (cRadioPanelLogic::*standard)(Row&));
    void ClickStandard(Row& row);
    void LongClickStandard(Row& row);
    void Swap(size_t channel);
    template <class Act>
    void InOrder(Act act);
    void TurnStandard(const Row& row, bool outer, bool up, uint8_t speed);
    void TuneChannel(size_t channel, bool outer, int32_t steps);

    EventOutput& output_;
    ProfileStore& profiles_;
    ctlRadioPanel& control_;
    OffsetRows offsets_;
    MasterPower power_;
    RadioAdf adf_;
    RadioDme dme_;
    RadioTransponder transponder_;

    std::array<Row, 2> rows_;
    // As the last tick has read them, and the knobs have changed them since.
    TickValues values_;
    std::array<float, kRadioChannels.size()> frequency_{};  // MHz, what the knob changes
};
