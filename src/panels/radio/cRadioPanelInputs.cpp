// What the panel's events do: bound actions, and the built-in behaviour of the radios.
#include "base/Bytes.h"
#include "base/Number.h"
#include "panels/radio/RadioFrequency.h"
#include "panels/radio/cRadioPanelLogic.h"

// What needs no value comes behind what waits for one all the same.
template <class Act>
void cRadioPanelLogic::InOrder(Act act) {
    session_.Acts.Do([this, act]() mutable {
        act();
        NoteChange();
        return true;
    });
}

void cRadioPanelLogic::SelectorChange(int16_t Selector, int32_t NewPos, int32_t /*OldPos*/) {
    if (Selector != 1 && Selector != 2) return;
    Row& row = rows_[static_cast<size_t>(Selector - 1)];
    row.selectorPos = NewPos;
    NoteChange();
    if (Index == 1 && Selector == 1 && NewPos >= RadioPosition::kCOM1 &&
        NewPos <= RadioPosition::kNAV2) {
        session_.EngineSelected = static_cast<uint8_t>(NewPos);
    }
    ApplyAcceleration(row);
    output_.RunAction(RPActions->GetSelectorActions(NewPos));
}

cRadioPanelLogic::Row* cRadioPanelLogic::RowOf(int32_t button) {
    for (size_t side = 0; side < kRadioButtonBits.size(); ++side) {
        if (kRadioButtonBits[side] == button) return &rows_[side];
    }
    return nullptr;
}

void cRadioPanelLogic::ButtonClick(int32_t Button) {
    Row* row = RowOf(Button);
    if (!row) return;
    Press(*row, RPActions->GetButtonsActions(row->selectorPos), &cRadioPanelLogic::ClickStandard);
}

void cRadioPanelLogic::ButtonLongClick(int32_t Button) {
    Row* row = RowOf(Button);
    if (!row) return;
    Press(*row, RPActions->GetLongButtonsActions(row->selectorPos),
          &cRadioPanelLogic::LongClickStandard);
}

void cRadioPanelLogic::ButtonUp(int32_t Button) {
    if (Row* row = RowOf(Button)) row->held.LetGo();
}

// A virtual button stays down until the panel's button comes up.
void cRadioPanelLogic::Press(Row& row, const ActionRecord& record,
                             void (cRadioPanelLogic::*standard)(Row&)) {
    if (record.FSEvent == ActionKind::VButton) {
        row.held.LetGo();
        row.held.MoveTo(record);
    } else if (record.FSEvent == ActionKind::Offset) {
        (this->*standard)(row);
    } else {
        output_.SendAction(record);
    }
}

void cRadioPanelLogic::ClickStandard(Row& row) {
    switch (row.selectorPos) {
        case RadioPosition::kCOM1:
        case RadioPosition::kCOM2:
        case RadioPosition::kNAV1:
        case RadioPosition::kNAV2:
            Swap(static_cast<size_t>(row.selectorPos - RadioPosition::kCOM1));
            break;
        case RadioPosition::kADF:
            OnceRead(values_, [this, mode = RPActions->ADFMode, side = row.side] {
                adf_.Click(mode, side);
            });
            break;
        case RadioPosition::kDME:
            if (RPActions->DMEMode == 0)
                row.dmeChoice = static_cast<uint8_t>(row.dmeChoice % 3 + 1);
            NoteChange();
            break;
        case RadioPosition::kXPDR:
            InOrder([this] { transponder_.NextDigit(); });
            break;
        default:
            break;
    }
}

void cRadioPanelLogic::LongClickStandard(Row& row) {
    if (row.selectorPos == RadioPosition::kDME) {
        dme_.ToggleTime();
        NoteChange();
    } else if (row.selectorPos == RadioPosition::kXPDR) {
        if (RPActions->AltimeterUnit == 0) InOrder([this] { transponder_.ToggleUnit(); });
    } else {
        ClickStandard(row);
    }
}

// The simulator does it.
void cRadioPanelLogic::Swap(size_t channel) {
    InOrder(
        [=, this] { session_.WriteOffset(kRadioSwap, 1, kRadioChannels[channel].swap, false); });
}

void cRadioPanelLogic::Rotary(int16_t Rotary, int16_t Direction, uint8_t Side, uint8_t Speed) {
    if (Side != 1 && Side != 2) return;
    const Row& row = rows_[Side - 1U];
    const ActionRecord& record = RPActions->GetRotActions(Rotary, Direction, row.selectorPos);
    if (record.FSEvent == ActionKind::Offset) {
        TurnStandard(row, Rotary != 0, Direction != 0, Speed);
    } else {
        output_.SendAction(record, Speed);
    }
}

void cRadioPanelLogic::TurnStandard(const Row& row, bool outer, bool up, uint8_t speed) {
    const int32_t steps = up ? speed : -speed;
    switch (row.selectorPos) {
        case RadioPosition::kCOM1:
        case RadioPosition::kCOM2:
        case RadioPosition::kNAV1:
        case RadioPosition::kNAV2: {
            const auto channel = static_cast<size_t>(row.selectorPos - RadioPosition::kCOM1);
            OnceRead(values_, [=, this] { TuneChannel(channel, outer, steps); });
            break;
        }
        case RadioPosition::kADF: {
            const float step = outer ? RPActions->ADFOuterKnobStep : RPActions->ADFInnerKnobStep;
            OnceRead(values_, [=, this, mode = RPActions->ADFMode, side = row.side] {
                adf_.Turn(mode, side, step, steps);
            });
            break;
        }
        case RadioPosition::kXPDR:
            if (outer && session_.SpecialMode == kNGXMode) {
                transponder_.TurnAltimeter(up);
            } else {
                OnceRead(values_, [=, this] {
                    outer ? transponder_.TurnAltimeter(up) : transponder_.TurnDigit(up);
                });
            }
            break;
        default:
            break;
    }
}

void cRadioPanelLogic::TuneChannel(size_t channel, bool outer, int32_t steps) {
    const RadioChannel& radio = kRadioChannels[channel];
    float& frequency = frequency_[channel];
    frequency = TuneFrequency(frequency, outer ? radio.outerStep : radio.innerStep, steps);
    frequency = WithinBand(frequency, radio.band);
    if (ActiveOnly(channel)) {
        const auto number = RoundTo<int32_t>(static_cast<double>(frequency) * 100 - 10000);
        output_.SendControl(radio.maddogControl, DecimalToBCD(number));
        return;
    }
    session_.WriteBcd(kRadioOffsets[StandbyOf(channel)].offset, FrequencyDigits(frequency));
}
