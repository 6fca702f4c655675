// What the panel's events do: bound actions, and the built-in behaviour of the radios.
#include <cmath>
#include <utility>

#include "base/Bytes.h"
#include "base/Number.h"
#include "panels/radio/RadioFrequency.h"
#include "panels/radio/cRadioPanelLogic.h"
#include "simlink/channel/NGXEventTable.h"

namespace {

constexpr float kAltimeterStepInHg = 0.25F;  // hPa

constexpr int32_t kNGXAltimeterKnob = 69997;
constexpr int32_t kNGXAltimeterUp = 16384;
constexpr int32_t kNGXAltimeterDown = 8192;
constexpr int32_t kNGXAltimeterUnit = 69998;

// Goes over the end of the band to the other one, once: a fast turn may go further.
float WithinBand(float frequency, const RadioBand& band) {
    const float width = band.high - band.low;
    if (frequency < band.low) frequency += width;
    if (frequency >= band.high) frequency -= width;
    return frequency;
}

}  // namespace

void cRadioPanelLogic::SelectorChange(int16_t Selector, int32_t NewPos, int32_t /*OldPos*/) {
    if (Selector != 1 && Selector != 2) return;
    Row& row = rows_[static_cast<size_t>(Selector - 1)];
    row.selectorPos = NewPos;
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
            ClickAdf(row);
            break;
        case RadioPosition::kDME:
            if (RPActions->DMEMode == 0)
                row.dmeChoice = static_cast<uint8_t>(row.dmeChoice % 3 + 1);
            break;
        case RadioPosition::kXPDR:
            transponderDigit_ = static_cast<uint8_t>(transponderDigit_ % 4 + 1);
            break;
        default:
            break;
    }
}

void cRadioPanelLogic::LongClickStandard(Row& row) {
    if (row.selectorPos == RadioPosition::kDME) {
        showDmeTime_ = !showDmeTime_;
    } else if (row.selectorPos == RadioPosition::kXPDR) {
        ToggleAltimeterUnit();
    } else {
        ClickStandard(row);
    }
}

// The simulator does it.
void cRadioPanelLogic::Swap(size_t channel) {
    session_.WriteOffset(kRadioSwap, 1, kRadioChannels[channel].swap, false);
}

void cRadioPanelLogic::ClickAdf(const Row& row) {
    if (RPActions->ADFMode == 2) {
        adfTuned_ = adfTuned_ == 1 ? 2 : 1;
    } else if (RPActions->ADFMode >= 3 && RPActions->ADFMode <= 5 && values_.AreRead()) {
        PrepareAdfStandby();
        const size_t adf = AdfOf(row);
        std::swap(session_.AdfActive[adf], session_.AdfStandby[adf]);
        WriteAdf(adf);
    }
}

// The NGX has a unit of its own, which the next tick reads.
void cRadioPanelLogic::ToggleAltimeterUnit() {
    if (RPActions->AltimeterUnit != 0) return;
    if (session_.SpecialMode == kNGXMode) {
        output_.SendControl(kNGXAltimeterUnit, kNGXLeftClick);
    } else {
        altimeterInHg_ = !altimeterInHg_;
    }
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
    if (!values_.AreRead()) return;
    const int32_t steps = up ? speed : -speed;
    switch (row.selectorPos) {
        case RadioPosition::kCOM1:
        case RadioPosition::kCOM2:
        case RadioPosition::kNAV1:
        case RadioPosition::kNAV2:
            TuneChannel(static_cast<size_t>(row.selectorPos - RadioPosition::kCOM1), outer, steps);
            break;
        case RadioPosition::kADF:
            TuneAdf(row, outer, steps);
            break;
        case RadioPosition::kXPDR:
            outer ? TurnAltimeter(up) : TurnTransponderDigit(up);
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
    WriteBCD(kRadioOffsets[StandbyOf(channel)].offset, FrequencyDigits(frequency));
}

// The standby frequencies are the program's own: they reach the simulator when a click swaps them.
void cRadioPanelLogic::TuneAdf(const Row& row, bool outer, int32_t steps) {
    if (RPActions->ADFMode > 5) return;
    PrepareAdfStandby();
    const size_t adf = AdfOf(row);
    float& frequency = AdfIsTunedAtOnce() ? session_.AdfActive[adf] : session_.AdfStandby[adf];
    const float step = outer ? RPActions->ADFOuterKnobStep : RPActions->ADFInnerKnobStep;
    frequency = WithinBand(TuneFrequency(frequency, step, steps), kAdfBand);
    if (AdfIsTunedAtOnce()) WriteAdf(adf);
}

// 0 for ADF1, 1 for ADF2: the one that the row's knob and button act on in the modes 0 to 5.
size_t cRadioPanelLogic::AdfOf(const Row& row) const {
    const size_t byMode[] = {0, 1, adfTuned_ - 1U, 0, 1, row.side - 1U};
    return byMode[RPActions->ADFMode];
}

void cRadioPanelLogic::WriteAdf(size_t adf) {
    const AdfDigits digits = AdfToBCD(session_.AdfActive[adf]);
    WriteBCD(kRadioOffsets[AdfMainOf(adf)].offset, digits.main);
    WriteBCD(kRadioOffsets[AdfExtensionOf(adf)].offset, digits.extension);
}

// Digits go from 0 to 7 and take nothing along.
void cRadioPanelLogic::TurnTransponderDigit(bool up) {
    char& digit = transponder_[transponderDigit_ - 1U];
    const int value = digit - '0' + (up ? 1 : -1);
    digit = static_cast<char>('0' + (value > 7 ? 0 : value < 0 ? 7 : value));
    WriteBCD(kRadioOffsets[kTransponder].offset, ParseInteger<int32_t>(transponder_).value_or(0));
}

void cRadioPanelLogic::TurnAltimeter(bool up) {
    if (session_.SpecialMode == kNGXMode) {
        output_.SendControl(kNGXAltimeterKnob, up ? kNGXAltimeterUp : kNGXAltimeterDown);
        return;
    }
    if (!altimeterInHg_) qnh_ = std::trunc(qnh_);
    const float step = altimeterInHg_ ? kAltimeterStepInHg : 1;
    qnh_ += up ? step : -step;
    session_.WriteOffset(kRadioOffsets[kQnh].offset, kRadioOffsetType, qnh_ * kQnhPerHPa, true);
}

// At once, so that the next tick reads what was tuned.
void cRadioPanelLogic::WriteBCD(int32_t offset, int32_t digits) {
    cOFFSET target(session_.Fsuipc, offset, kRadioOffsetType);
    target.SetBcd(digits);
    target.DirectWrite(true);
}
