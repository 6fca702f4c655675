// What the panel reads and shows.
#include "panels/radio/cRadioPanelLogic.h"

#include "panels/radio/RadioFrequency.h"
#include "panels/radio/RadioTexts.h"

cRadioPanelLogic::cRadioPanelLogic(const LogicServices& services, ctlRadioPanel& control,
                                   int16_t index)
    : cPanelLogic(services.session, control),
      Index(index),
      output_(services.output),
      profiles_(services.profiles),
      control_(control),
      offsets_(session_.OffsetTable, kRadioOffsets),
      power_(session_.OffsetTable),
      adf_(session_, offsets_),
      dme_(offsets_),
      transponder_(session_, output_, offsets_),
      rows_{Row(1, output_), Row(2, output_)},
      values_(session_) {}

void cRadioPanelLogic::StartUp() {
    session_.AdfStandby = {};
    RPActions = std::make_unique<cRadioPanelActionsHolder>(profiles_);
    RPActions->Index = Index;
    RPActions->LoadSetup();
    SetupChanged();
}

void cRadioPanelLogic::ApplySetup() {
    offsets_.RegisterMode(session_.SpecialMode);
    power_.Register();
    values_.Forget();
    transponder_.SetInHg(RPActions->AltimeterUnit != 1);
    for (Row& row : rows_) {
        if (row.selectorPos != RadioPosition::kNone) ApplyAcceleration(row);
        row.dmeChoice = RPActions->DMEMode == 0 ? uint8_t{1} : RPActions->DMEMode;
    }
}

void cRadioPanelLogic::ApplyAcceleration(const Row& row) {
    control_.SetAcceleration(row.side, RPActions->GetAcceleration(row.selectorPos));
}

void cRadioPanelLogic::Refresh() {
    ReadRadios();
    for (Row& row : rows_) ShowRow(row);
    if (power_.IsOn()) {
        control_.WriteDisplay(rows_[0].active, rows_[0].standby, rows_[1].active, rows_[1].standby);
    } else {
        control_.TurnOffDisplay();
    }
}

// All of them, as a knob may be turned between a selector's move and the next tick.
void cRadioPanelLogic::ReadRadios() {
    for (size_t channel = 0; channel < kRadioChannels.size(); ++channel) {
        const size_t from = ActiveOnly(channel) ? ActiveOf(channel) : StandbyOf(channel);
        const float read = offsets_[from].GetFreq();
        frequency_[channel] = kRadioChannels[channel].thousandths ? RestoreChannel(read) : read;
    }
    adf_.Read();
    transponder_.Read();
    values_.Take();
}

void cRadioPanelLogic::ShowRow(Row& row) {
    switch (row.selectorPos) {
        case RadioPosition::kCOM1:
        case RadioPosition::kCOM2:
        case RadioPosition::kNAV1:
        case RadioPosition::kNAV2:
            ShowChannel(row, static_cast<size_t>(row.selectorPos - RadioPosition::kCOM1));
            break;
        case RadioPosition::kADF:
            adf_.Show(RPActions->ADFMode, row.side, row.active, row.standby);
            break;
        case RadioPosition::kDME:
            dme_.Show(row.dmeChoice, row.active, row.standby);
            break;
        case RadioPosition::kXPDR:
            transponder_.Show(row.active, row.standby);
            break;
        default:
            break;
    }
}

void cRadioPanelLogic::ShowChannel(Row& row, size_t channel) {
    const float active = offsets_[ActiveOf(channel)].GetFreq();
    if (ActiveOnly(channel)) {
        row.active.clear();
        SetFixed(row.standby, active, 2);
    } else {
        SetFixed(row.active, active, 2);
        SetFixed(row.standby, offsets_[StandbyOf(channel)].GetFreq(), 2);
    }
}
