// What the panel reads and shows.
#include "panels/radio/cRadioPanelLogic.h"

#include "base/Number.h"
#include "panels/radio/RadioFrequency.h"

namespace {

constexpr double kInHgPerHPa = 0.02953;
constexpr int32_t kTenthsPerMinute = 600;  // of a second

// Distances are in tenths of a mile. From 100 miles on they are shown without them.
constexpr int32_t kLongestDistance = 9999;
constexpr int32_t kDistanceWithoutTenths = 1000;
constexpr char kOutOfRange[] = " . . .";

bool IsInRange(int32_t distance) { return distance >= 1 && distance <= kLongestDistance; }

void AppendDmeDistance(std::string& text, int32_t distance) {
    if (!IsInRange(distance)) {
        text += kOutOfRange;
    } else if (distance >= kDistanceWithoutTenths) {
        AppendInteger(text, distance / 10, 3);
    } else {
        AppendFixed(text, distance / 10.0, 1, 2);
    }
}

void SetFixed(std::string& text, double value, int decimals, int digits = 1) {
    text.clear();
    AppendFixed(text, value, decimals, digits);
}

}  // namespace

cRadioPanelLogic::cRadioPanelLogic(const LogicServices& services, ctlRadioPanel& control,
                                   int16_t index)
    : Index(index),
      session_(services.session),
      output_(services.output),
      profiles_(services.profiles),
      control_(control),
      offsets_(session_.OffsetTable, kRadioOffsets),
      power_(session_.OffsetTable),
      rows_{Row(1, output_), Row(2, output_)},
      values_(session_) {}

void cRadioPanelLogic::StartUp() {
    session_.AdfStandby = {};
    RPActions = std::make_unique<cRadioPanelActionsHolder>(profiles_);
    RPActions->Index = Index;
    RPActions->LoadSetup();
    SetupChanged();
}

void cRadioPanelLogic::SetupChanged() {
    offsets_.RegisterMode(session_.SpecialMode);
    power_.Register();
    values_.Forget();
    altimeterInHg_ = RPActions->AltimeterUnit != 1;
    for (Row& row : rows_) {
        if (row.selectorPos != RadioPosition::kNone) ApplyAcceleration(row);
        row.dmeChoice = RPActions->DMEMode == 0 ? uint8_t{1} : RPActions->DMEMode;
    }
}

void cRadioPanelLogic::ApplyAcceleration(const Row& row) {
    control_.SetAcceleration(row.side, RPActions->GetAcceleration(row.selectorPos));
}

void cRadioPanelLogic::RefreshData() {
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
    for (size_t adf = 0; adf < session_.AdfActive.size(); ++adf) {
        session_.AdfActive[adf] =
            AdfFromBCD(offsets_[AdfMainOf(adf)].GetBCD(), offsets_[AdfExtensionOf(adf)].GetBCD());
    }
    qnh_ = static_cast<float>(Value(kQnh)) / kQnhPerHPa;
    if (session_.SpecialMode == kNGXMode) altimeterInHg_ = Value(kNGXUnit) == 0;
    transponder_.clear();
    AppendInteger(transponder_, offsets_[kTransponder].GetBCD(), 4);
    values_.Take();
}

// What is prepared starts out as what is there, once a row stands at ADF.
void cRadioPanelLogic::PrepareAdfStandby() {
    for (size_t adf = 0; adf < session_.AdfStandby.size(); ++adf) {
        if (session_.AdfStandby[adf] == 0) session_.AdfStandby[adf] = session_.AdfActive[adf];
    }
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
            ShowAdf(row);
            break;
        case RadioPosition::kDME:
            ShowDme(row);
            break;
        case RadioPosition::kXPDR:
            ShowTransponder(row);
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

void cRadioPanelLogic::ShowAdf(Row& row) {
    PrepareAdfStandby();
    const auto set = [](std::string& text, float frequency) { SetFixed(text, frequency, 1, 4); };
    const auto& active = session_.AdfActive;
    const uint8_t mode = RPActions->ADFMode;
    switch (mode) {
        case 0:
        case 1:
            row.active.clear();
            AppendDmeDistance(row.active, offsets_[kDmeDistance + mode].IntegerData());
            set(row.standby, active[mode]);
            break;
        case 2:
            set(row.active, active[1]);
            set(row.standby, active[0]);
            (adfTuned_ == 2 ? row.active : row.standby) += '.';
            break;
        case 3:
        case 4:
        case 5:
            set(row.active, active[AdfOf(row)]);
            set(row.standby, session_.AdfStandby[AdfOf(row)]);
            break;
        default:
            set(row.standby, active[0]);
            break;
    }
}

void cRadioPanelLogic::ShowDme(Row& row) {
    if (row.dmeChoice == 1) {
        row.active.clear();
        AppendDmeDistance(row.active, offsets_[kDmeDistance].IntegerData());
        row.standby.clear();
        AppendDmeDistance(row.standby, offsets_[kDmeDistance + 1].IntegerData());
    } else if (row.dmeChoice <= 3) {
        ShowDmeStation(row, row.dmeChoice - 2U);
    }
}

// One station's distance, and its speed or time.
void cRadioPanelLogic::ShowDmeStation(Row& row, size_t station) {
    const int32_t distance = offsets_[kDmeDistance + station].IntegerData();
    row.active = station == 0 ? "1 " : "2 ";
    AppendDmeDistance(row.active, distance);
    if (!IsInRange(distance)) {
        row.standby = kOutOfRange;
    } else if (showDmeTime_) {
        row.standby.clear();
        AppendInteger(row.standby, offsets_[kDmeTime + station].IntegerData() / kTenthsPerMinute,
                      2);
        row.standby += '.';
    } else {
        SetFixed(row.standby, Value(kDmeSpeed + station) / 10, 0, 3);
    }
}

// The altimeter setting, and the code with a point behind the digit that the knob changes.
void cRadioPanelLogic::ShowTransponder(Row& row) {
    if (altimeterInHg_) {
        SetFixed(row.active, qnh_ * kInHgPerHPa, 2, 2);
    } else {
        SetFixed(row.active, qnh_, 0, 4);
    }
    row.standby = transponder_;
    row.standby.insert(transponderDigit_, 1, '.');
}
