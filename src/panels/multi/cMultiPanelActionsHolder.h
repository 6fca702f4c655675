#pragma once

#include <cstdint>

#include "simlink/actions/ActionRecord.h"
#include "simlink/actions/Numbered.h"
#include "simlink/actions/cActionsHolder.h"

// What one Multi Panel's controls do in the current profile. Positions are those of the selector, 1
// ALT to 5 CRS, buttons 1 AP to 8 REV. Numbers that the panel doesn't have read as nothing, and
// setting them does nothing.
class cMultiPanelActionsHolder final : public cKeyedActionsHolder {
  public:
    explicit cMultiPanelActionsHolder(ProfileStore& profiles);

    int16_t TrimAcceleration = 0;  // 1 to 100; the higher, the sooner a turn counts as a fast one
    int16_t TrimSensitivity = 0;   // step factor of the trim wheel
    uint8_t ReverseTrim = 0;       // 1: the wheel works reversed
    uint8_t ReverseFlaps = 0;      // 1: the lever works reversed
    uint8_t CourseSel = 0;  // course at CRS: 1 NAV1, 2 NAV2, 0 the one that Radio Panel 1 has

    // As TrimAcceleration, of the knob.
    int16_t GetRotAcceleration(int32_t Position) const;
    void SetRotAcceleration(int32_t Position, int16_t Value);

    const ActionRecord& GetSelectorActions(int32_t Position) const;
    void SetSelectorActions(int32_t Position, const ActionRecord& Record);
    const ActionRecord& GetButtonsActions(int32_t Button) const;
    void SetButtonsActions(int32_t Button, const ActionRecord& Record);
    const ActionRecord& GetLongButtonsActions(int32_t Button) const;
    void SetLongButtonsActions(int32_t Button, const ActionRecord& Record);
    const ActionRecord& GetRotUpActions(int32_t Position) const;
    void SetRotUpActions(int32_t Position, const ActionRecord& Record);
    const ActionRecord& GetRotDownActions(int32_t Position) const;
    void SetRotDownActions(int32_t Position, const ActionRecord& Record);
    const ActionRecord& GetAutoThrottleActions(int32_t Side) const;  // 0 OFF, 1 ARM
    void SetAutoThrottleActions(int32_t Side, const ActionRecord& Record);
    const ActionRecord& GetFlapsActions(int32_t Direction) const;  // 0 DOWN, 1 UP
    void SetFlapsActions(int32_t Direction, const ActionRecord& Record);
    const ActionRecord& GetTrimActions(int32_t Direction) const;  // 0 DOWN, 1 UP
    void SetTrimActions(int32_t Direction, const ActionRecord& Record);

    // Rows of NGXEventTable, 0 to 22; setting others does nothing.
    uint8_t NGXGetShortButtonsActions(int32_t Button) const;
    void NGXSetShortButtonsActions(int32_t Button, uint8_t Row);
    uint8_t NGXGetLongButtonsActions(int32_t Button) const;
    void NGXSetLongButtonsActions(int32_t Button, uint8_t Row);

  private:
    BindingTable Keys() override;

    Numbered<ActionRecord, 1, 5> selector_;
    Numbered<ActionRecord, 1, 8> buttons_;
    Numbered<ActionRecord, 1, 8> longButtons_;
    Numbered<ActionRecord, 1, 5> rotUp_;
    Numbered<ActionRecord, 1, 5> rotDown_;
    Numbered<ActionRecord, 0, 1> autoThrottle_;
    Numbered<ActionRecord, 0, 1> flaps_;
    Numbered<ActionRecord, 0, 1> trim_;
    Numbered<int16_t, 1, 5> rotAcceleration_;
    Numbered<uint8_t, 1, 8> ngxShort_;
    Numbered<uint8_t, 1, 8> ngxLong_;
};
