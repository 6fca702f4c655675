// What the panel reads and shows.
#include "panels/radio/cRadioPanelLogic.h"

#include "base/Number.h"
#include "panels/radio/RadioFrequency.h"

namespace {

constexpr size_t kFirstNav = 2;
constexpr float kSixteenths = 16;
constexpr double kInHgPerHPa = 0.02953;

void SetFixed(std::string& text, double value, int digits, int decimals) {
    text.clear();
    AppendFixed(text, value, decimals, digits);
}

}  // namespace

cRadioPanelLogic::cRadioPanelLogic(const LogicServices& services, ctlRadioPanel& control,
                                   int16_t index)
    : Index(index),
      session_(services.session),
      profiles_(services.profiles),
      clock_(services.clock),
      loop_(services.loop),
      control_(control),
      ngxUnit_(session_.OffsetTable, kNGXUnit.name),
      power_(session_.OffsetTable) {
    for (const RadioOffset& each : kRadioOffsets) {
        offsets_.emplace_back(session_.OffsetTable, each.name);
    }
}

void cRadioPanelLogic::StartUp() {
    session_.AdfStandby = {};
    RPActions = std::make_unique<cRadioPanelActionsHolder>(profiles_);
    RPActions->Index = Index;
    RPActions->LoadSetup();
    SetupChanged();
}

void cRadioPanelLogic::SetupChanged() {
    RegisterOffsets();
    altimeterInHg_ = RPActions->AltimeterUnit != 1;
    for (Row& row : rows_) {
        if (row.selectorPos != 0) ApplyAcceleration(row);
        row.dmeChoice = RPActions->DMEMode == 0 ? uint8_t{1} : RPActions->DMEMode;
    }
}

void cRadioPanelLogic::RegisterOffsets() {
    cOffsetTable& table = session_.OffsetTable;
    table.UnregisterOffset(kNGXUnit.name);
    for (const RadioOffset& each : kRadioOffsets) {
        table.RegisterOffset(each.offset, kRadioOffsetType, each.name);
    }
    power_.Register();
    if (session_.SpecialMode == kNGXMode) {
        table.RegisterOffset(kNGXUnit.offset, kNGXUnitType, kNGXUnit.name);
    }
}

void cRadioPanelLogic::ApplyAcceleration(const Row& row) {
    control_.SetAcceleration(row.side, RPActions->GetAcceleration(row.selectorPos));
}

void cRadioPanelLogic::RefreshData() {
    known_ = true;
    tuned_ = {};
    for (Row& row : rows_) RefreshRow(row);
    if (power_.IsOn()) {
        control_.WriteDisplay(rows_[0].active, rows_[0].standby, rows_[1].active, rows_[1].standby);
    } else {
        control_.TurnOffDisplay();
    }
}

void cRadioPanelLogic::RefreshRow(Row& row) {
    switch (row.selectorPos) {
        case 1:
        case 2:
        case 3:
        case 4:
            ShowChannel(row, static_cast<size_t>(row.selectorPos - 1));
            break;
        case 5:
            ReadAdf();
            ShowAdf(row);
            break;
        case 6:
            ShowDme(row);
            break;
        case 7:
            ShowTransponder(row);
            break;
        default:
            break;
    }
}

// The Maddog's NAV radios have no standby frequency: the display of the active one is dark.
void cRadioPanelLogic::ShowChannel(Row& row, size_t channel) {
    const bool activeOnly = session_.SpecialMode == kMaddogMode && channel >= kFirstNav;
    const float active = offsets_[ActiveRow(channel)].GetFreq();
    const float tuned = activeOnly ? active : offsets_[StandbyRow(channel)].GetFreq();
    row.active.clear();
    if (!activeOnly) AppendFixed(row.active, active, 2);
    SetFixed(row.standby, tuned, 1, 2);
    frequency_[channel] = kRadioChannels[channel].thousandths ? RestoreChannel(tuned) : tuned;
}

void cRadioPanelLogic::ReadAdf() {
    session_.AdfActive[0] =
        AdfFromBCD(offsets_[kAdf1MainRow].GetBCD(), offsets_[kAdf1ExtensionRow].GetBCD());
    session_.AdfActive[1] =
        AdfFromBCD(offsets_[kAdf2MainRow].GetBCD(), offsets_[kAdf2ExtensionRow].GetBCD());
    for (size_t adf = 0; adf < 2; ++adf) {
        if (session_.AdfStandby[adf] == 0) session_.AdfStandby[adf] = session_.AdfActive[adf];
    }
}

void cRadioPanelLogic::ShowAdf(Row& row) {
    const auto& active = session_.AdfActive;
    const auto& standby = session_.AdfStandby;
    const auto set = [](std::string& text, float frequency) { SetFixed(text, frequency, 4, 1); };
    switch (RPActions->ADFMode) {
        case 0:
        case 1:
            row.active.clear();
            AppendDmeDistance(
                row.active, offsets_[RPActions->ADFMode == 0 ? kDme1DistanceRow : kDme2DistanceRow]
                                .IntegerData());
            set(row.standby, active[RPActions->ADFMode]);
            break;
        case 2:
            set(row.active, active[1]);
            set(row.standby, active[0]);
            (adfTuned_ == 2 ? row.active : row.standby) += '.';
            break;
        case 3:
        case 4:
        case 5: {
            const size_t adf = AdfOf(row);
            set(row.active, active[adf]);
            set(row.standby, standby[adf]);
            break;
        }
        default:
            set(row.standby, active[0]);
            break;
    }
}

void cRadioPanelLogic::ShowDme(Row& row) {
    if (row.dmeChoice == 1) {
        row.active.clear();
        AppendDmeDistance(row.active, offsets_[kDme1DistanceRow].IntegerData());
        row.standby.clear();
        AppendDmeDistance(row.standby, offsets_[kDme2DistanceRow].IntegerData());
    } else if (row.dmeChoice <= 3) {
        ShowDmeStation(row, row.dmeChoice - 2U);
    }
}

// One station's distance, and its speed or time.
void cRadioPanelLogic::ShowDmeStation(Row& row, size_t station) {
    const int32_t distance = offsets_[kDme1DistanceRow + station].IntegerData();
    row.active = station == 0 ? "1 " : "2 ";
    AppendDmeDistance(row.active, distance);
    row.standby.clear();
    if (!DmeInRange(distance)) {
        AppendDmeDistance(row.standby, distance);
    } else if (showDmeTime_) {
        AppendInteger(row.standby, offsets_[kDme1TimeRow + station].IntegerData() / 600, 2);
        row.standby += '.';
    } else {
        AppendFixed(row.standby, Value(kDme1SpeedRow + station) / 10, 0, 3);
    }
}

// The altimeter setting, and the code with a point behind the digit that the knob changes.
void cRadioPanelLogic::ShowTransponder(Row& row) {
    qnh_ = static_cast<float>(Value(kQnhRow)) / kSixteenths;
    if (session_.SpecialMode == kNGXMode) altimeterInHg_ = ngxUnit_.Data() == 0;
    if (altimeterInHg_) {
        SetFixed(row.active, qnh_ * kInHgPerHPa, 2, 2);
    } else {
        SetFixed(row.active, qnh_, 4, 0);
    }
    transponder_.clear();
    AppendInteger(transponder_, offsets_[kTransponderRow].GetBCD(), 4);
    row.standby = transponder_;
    row.standby.insert(transponderDigit_, 1, '.');
}
