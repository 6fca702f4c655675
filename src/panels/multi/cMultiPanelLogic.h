#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <vector>

#include "panels/multi/MultiPanelOffsets.h"
#include "panels/multi/cMultiPanelActionsHolder.h"
#include "panels/multi/ctlMultiPanel.h"
#include "simlink/channel/MasterPower.h"
#include "simlink/channel/cSession.h"
#include "simlink/devices/cPanelLogic.h"

// Behaviour of one Multi Panel: shows the autopilot's values and lights on the panel's control, and
// turns its events into what the bindings say. StartUp comes before all else. Selector positions
// are 1 ALT, 2 VS, 3 IAS, 4 HDG, 5 CRS, buttons 1 AP to 8 REV; other numbers do nothing.
class cMultiPanelLogic final : public cPanelLogic {
  public:
    cMultiPanelLogic(const LogicServices& services, ctlMultiPanel& control, int16_t index);

    void StartUp() override;
    void RefreshData() override;
    void SetupChanged() override;
    void LoadSetup() override { MPActions->LoadSetup(); }

    void AutoThrottleChange(int16_t State);  // 0 is OFF
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
    // The add-on publishes nothing: these are the panel's own values, and may differ from what the
    // add-on has until they have been turned.
    struct Maddog {
        bool autopilotOn = false;
        bool machMode = false;
        int32_t altitude = 0;       // feet
        int32_t verticalSpeed = 0;  // feet per minute
        int32_t speed = 100;        // knots
        int32_t mach = 500;         // Mach x 1000
        int32_t heading = 0;        // degrees
        int32_t course = 0;         // degrees
        int32_t navMode = 1;        // next parameter of the REV button's control
    };

    void ApplyRotAcceleration();
    void ApplyTrimAcceleration();
    void RegisterOffsets();
    void Register(std::span<const MultiPanelOffset> offsets);
    void RegisterNGXLights();
    double Value(size_t row) const { return offsets_[row].Data(); }
    void UpdateLight(size_t row, uint8_t bit);
    bool SecondCourse() const;
    void RefreshValues();
    void RefreshTexts();
    void ShowStandard();
    void ShowNGX();

    template <class NGX, class Standard>
    void Do(const ActionRecord& record, int times, NGX ngx, Standard standard);
    void SendSelectorAction(int32_t newPosition, int32_t oldPosition);
    void PressButton(int32_t button, const ActionRecord& record, uint8_t ngxRow);
    void ToggleHold(int32_t button);
    void TurnStandard(int step);
    void TrimStandard(bool up, int16_t speed);
    void MoveFlapsStandard(bool up);

    void RunNGXFunction(uint8_t row);
    void TurnNGX(bool up);
    void TrimNGX(bool up, int16_t speed);
    void MoveFlapsNGX(bool up);
    void SetThrottleNGX(bool armed);

    void RefreshMaddog();
    void ShowMaddogPosition();
    void SM_MADDOG_ButtonClick(int32_t Button);
    void SM_MADDOG_Rotary(int16_t Direction, int16_t Speed);
    void SM_MADDOG_AutoThrottle(int16_t State);
    void ToggleMaddogAutopilot();
    void ToggleMaddogMach();
    void TurnMaddogSpeed(int32_t step);

    cSession& session_;
    EventOutput& output_;
    ProfileStore& profiles_;
    Clock& clock_;
    ctlMultiPanel& control_;
    std::vector<NamedOffset> offsets_;  // as kMultiPanelNames
    MasterPower power_;

    int32_t selectorPosition_ = 0;  // 0 before the first SelectorChange
    bool forceWrite_ = false;       // the next WriteDisplay goes out in any case
    std::string upperText_;
    std::string lowerText_;
    uint8_t panelLights_ = 0;
    // As the simulator gave them at the last tick, and the knob has changed them since.
    int16_t headingBug_ = 0;
    double speedValue_ = 0;
    int32_t altitudeValue_ = 0;
    int16_t verticalSpeed_ = 0;
    int16_t courseValue_ = 0;
    Maddog maddog_;
};
