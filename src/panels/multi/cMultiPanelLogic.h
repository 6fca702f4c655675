#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "panels/multi/cMultiPanelActionsHolder.h"
#include "panels/multi/ctlMultiPanel.h"
#include "simlink/cPanelLogic.h"
#include "simlink/cSession.h"

// Behaviour of one Multi Panel: shows the autopilot's values and lights on the panel's control, and
// turns its events into changes of the simulator. Selector positions are 1 ALT, 2 VS, 3 IAS, 4 HDG,
// 5 CRS, buttons 1 AP to 8 REV; other numbers do nothing.
class cMultiPanelLogic final : public cPanelLogic {
  public:
    cMultiPanelLogic(cSession& session, ctlMultiPanel& control, int16_t index);

    void StartUp() override;
    void RefreshData() override;
    void SetupChanged() override;
    void LoadSetup() override { MPActions->LoadDefaults(); }

    void AutoThrottleChange(int16_t State);  // 0 is OFF
    void ButtonClick(int32_t Button);
    void ButtonLongClick(int32_t Button);
    void Rotary(int16_t Direction, int16_t Speed);  // 1 is clockwise
    void SelectorChange(int32_t NewPosition, int32_t OldPosition);
    void Trim(int16_t Direction, int16_t Speed);  // 1 is up
    void Flaps(int16_t Direction);                // 1 is up

    const int16_t Index;
    std::unique_ptr<cMultiPanelActionsHolder> MPActions;

  private:
    void RegisterOffsets();
    double Value(size_t row) const { return offsets_[row].Data(); }
    void UpdateLight(size_t row, uint8_t bit);
    bool SecondCourse() const;
    void RefreshValues();
    void RefreshTexts();
    void WriteOffset(int32_t offset, int32_t dataType, double value);
    void ToggleHold(int32_t button);

    cSession& session_;
    ctlMultiPanel& control_;
    std::vector<NamedOffset> offsets_;  // as the tables of names
    NamedOffset masterBattery_;
    NamedOffset masterAvionics_;

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
};
