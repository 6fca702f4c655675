#pragma once

#include <cstdint>

#include "simlink/actions/ActionRecord.h"
#include "simlink/actions/Numbered.h"
#include "simlink/actions/cActionsHolder.h"

// What one Radio Panel's controls do in the current profile. Positions are those of the selectors,
// 1 COM1 to 7 XPDR; both rows share them. Rings are 0 inner and 1 outer, directions 1 clockwise and
// 0 counter-clockwise. Numbers that the panel doesn't have read as nothing, and setting them does
// nothing.
class cRadioPanelActionsHolder final : public cKeyedActionsHolder {
  public:
    explicit cRadioPanelActionsHolder(ProfileStore& profiles);

    uint8_t AltimeterUnit = 0;  // 0 changed with the button, 1 hPa, 2 inHg
    // At DME: 0 changed with the button, 1 the distances of DME1 and DME2, 2 distance and speed or
    // time of DME1, 3 of DME2.
    uint8_t DMEMode = 0;
    // At ADF: 0 DME1 and ADF1, 1 DME2 and ADF2, 2 ADF1 and ADF2, 3 ADF1 active and standby, 4 ADF2
    // active and standby, 5 ADF1 on the upper row and ADF2 on the lower.
    uint8_t ADFMode = 0;
    static constexpr float kLeastADFStep = 0.01F;
    static constexpr float kLargestADFStep = 1000;
    float ADFInnerKnobStep = 0;  // kHz for each step of a ring at ADF, within these
    float ADFOuterKnobStep = 0;

    // 1 to 100; the higher, the sooner a turn counts as a fast one.
    int16_t GetAcceleration(int32_t Position) const;
    void SetAcceleration(int32_t Position, int16_t Value);

    const ActionRecord& GetSelectorActions(int32_t Position) const;
    void SetSelectorActions(int32_t Position, const ActionRecord& Record);
    const ActionRecord& GetButtonsActions(int32_t Position) const;
    void SetButtonsActions(int32_t Position, const ActionRecord& Record);
    const ActionRecord& GetLongButtonsActions(int32_t Position) const;
    void SetLongButtonsActions(int32_t Position, const ActionRecord& Record);
    const ActionRecord& GetRotActions(int32_t Rotary, int32_t Direction, int32_t Position) const;
    void SetRotActions(int32_t Rotary, int32_t Direction, int32_t Position,
                       const ActionRecord& Record);

  private:
    static constexpr int32_t kLastPosition = 7;
    using PositionActions = Numbered<ActionRecord, 1, kLastPosition>;

    BindingTable Keys() override;

    PositionActions selector_;
    PositionActions buttons_;
    PositionActions longButtons_;
    // By ring and direction.
    Numbered<Numbered<PositionActions, 0, 1>, 0, 1> rotary_;
    Numbered<int16_t, 1, kLastPosition> acceleration_;
};
