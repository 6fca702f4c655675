#pragma once

#include <array>
#include <cstdint>

#include "simlink/ActionRecord.h"

// What one Multi Panel's controls do. Positions are those of the selector, 1 ALT to 5 CRS, buttons
// 1 AP to 8 REV; index 0 and indices beyond the panel give a record that does nothing.
class cMultiPanelActionsHolder {
  public:
    cMultiPanelActionsHolder() { LoadDefaults(); }

    int16_t Index = 0;  // number of the panel, from 1
    int16_t TrimAcceleration = 1;
    int16_t TrimSensitivity = 4;  // step factor of the trim wheel
    uint8_t ReverseTrim = 0;
    uint8_t ReverseFlaps = 0;
    uint8_t CourseSel =
        1;  // course of the CRS position: 1 NAV1, 2 NAV2, 0 what Radio Panel 1 shows

    int16_t GetRotAcceleration(int32_t Position) const;
    const ActionRecord& GetButtonsActions(int32_t Button) const;
    const ActionRecord& GetLongButtonsActions(int32_t Button) const;
    const ActionRecord& GetRotUpActions(int32_t Position) const;
    const ActionRecord& GetRotDownActions(int32_t Position) const;
    const ActionRecord& GetAutoThrottleActions(int32_t Side) const;  // 0 OFF, 1 ARM
    const ActionRecord& GetFlapsActions(int32_t Direction) const;    // 0 DOWN, 1 UP
    const ActionRecord& GetTrimActions(int32_t Direction) const;     // 0 DOWN, 1 UP

    void LoadDefaults();

  private:
    std::array<ActionRecord, 9> buttons_;
    std::array<ActionRecord, 9> longButtons_;
    std::array<ActionRecord, 6> rotUp_;
    std::array<ActionRecord, 6> rotDown_;
    std::array<ActionRecord, 2> autoThrottle_;
    std::array<ActionRecord, 2> flaps_;
    std::array<ActionRecord, 2> trim_;
    std::array<int16_t, 6> rotAcceleration_{};
};
