#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <string>

#include "panels/multi/MultiPanelMaddog.h"
#include "panels/multi/MultiPanelNGX.h"
#include "panels/multi/MultiPanelOffsets.h"
#include "panels/multi/MultiPanelStandard.h"
#include "panels/multi/MultiPanelValues.h"
#include "panels/multi/cMultiPanelActionsHolder.h"
#include "panels/multi/ctlMultiPanel.h"
#include "simlink/actions/HeldButton.h"
#include "simlink/channel/MasterPower.h"
#include "simlink/devices/cPanelLogic.h"

// Behaviour of one Multi Panel: shows the autopilot's values and lights on the panel's control, and
// turns its events into what the bindings say. StartUp comes before all else. Selector positions
// and buttons are those of MultiPanelNumber.h; other numbers do nothing.
class cMultiPanelLogic final : public cPanelLogic {
  public:
    cMultiPanelLogic(const LogicServices& services, ctlMultiPanel& control, int16_t index);

    void StartUp() override;

    void AutoThrottleChange(int16_t State);  // 0 is OFF
    // The switch has moved while no session was up.
    void LetGoOfAutoThrottle() { autoThrottle_.LetGo(); }
    void ButtonClick(int32_t Button);
    void ButtonLongClick(int32_t Button);
    void Rotary(int16_t Direction, int16_t Speed);  // 1 is clockwise
    void SelectorChange(int32_t NewPosition, int32_t OldPosition);
    void Trim(int16_t Direction, int16_t Speed);  // 1 is up
    void Flaps(int16_t Direction);                // 1 is up
    void SM_MADDOG_ButtonLongClick(int32_t Button);

    const int16_t Index;
    std::unique_ptr<cMultiPanelActionsHolder> MPActions;

  private:
    void Refresh() override;
    void AddPlaces(PlaceSet& places) const override {
        offsets_.AddPlaces(places);
        lights_.AddPlaces(places);
        power_.AddPlaces(places);
    }
    void ApplySetup() override;
    void ReadSetup() override { MPActions->LoadSetup(); }

    void ApplyRotAcceleration();
    void ApplyTrimAcceleration();
    void RegisterOffsets();
    uint8_t Lights() const;
    bool SecondCourse() const;

    template <class NGX, class Standard>
    void Do(const ActionRecord& record, int times, NGX ngx, Standard standard);
    void TurnStandard(int step);
    void PressButton(int32_t button, const ActionRecord& record, uint8_t ngxRow);
    template <class Press>
    void PressMaddog(Press press);
    bool SetThrottleNGX(bool armed);

    EventOutput& output_;
    ProfileStore& profiles_;
    ctlMultiPanel& control_;
    OffsetRows offsets_;
    // In the NGX mode each panel has lights of its own, as the functions of its buttons are.
    std::array<std::string, kMultiPanelLights> lightNames_;
    std::array<OffsetRow, kMultiPanelLights> lightRows_;
    OffsetRows lights_;
    MasterPower power_;
    MultiPanelMaddog maddog_;
    MultiPanelNGX ngx_;
    MultiPanelStandard standard_;
    HeldButton selector_;
    HeldButton autoThrottle_;

    int32_t selectorPosition_ = 0;  // 0 before the first SelectorChange
    bool forceWrite_ = false;       // the next WriteDisplay goes out in any case
    std::string upperText_;
    std::string lowerText_;
    MultiPanelValues values_;
};
