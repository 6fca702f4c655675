#include "panels/multi/cMultiPanelLogic.h"

#include "base/Number.h"
#include "panels/multi/MultiPanelOffsets.h"

namespace {

constexpr MultiPanelOffset kMasterBattery = {"MASTERBATTERY", 0x281C, 4};
constexpr MultiPanelOffset kMasterAvionics = {"MASTERAVIONICS", 0x2E80, 4};

void SetNumber(std::string& text, int64_t value, int digits) {
    text.clear();
    AppendInteger(text, value, digits);
}

}  // namespace

cMultiPanelLogic::cMultiPanelLogic(cSession& session, ctlMultiPanel& control, int16_t index)
    : Index(index),
      session_(session),
      control_(control),
      masterBattery_(session.OffsetTable, kMasterBattery.name),
      masterAvionics_(session.OffsetTable, kMasterAvionics.name) {
    for (const MultiPanelOffset& row : kMultiPanelOffsets) {
        offsets_.emplace_back(session.OffsetTable, row.name);
    }
}

void cMultiPanelLogic::StartUp() {
    MPActions = std::make_unique<cMultiPanelActionsHolder>();
    MPActions->Index = Index;
    LoadSetup();
    panelLights_ = 0;
    forceWrite_ = false;
    for (const MultiPanelOffset& row : {kMasterBattery, kMasterAvionics}) {
        session_.OffsetTable.RegisterOffset(row.offset, row.dataType, row.name);
    }
    SetupChanged();
}

void cMultiPanelLogic::SetupChanged() {
    if (selectorPosition_ != 0) {
        control_.RotAcceleration(
            static_cast<uint8_t>(MPActions->GetRotAcceleration(selectorPosition_)));
    }
    control_.TrimAcceleration(static_cast<uint8_t>(MPActions->TrimAcceleration));
    RegisterOffsets();
}

void cMultiPanelLogic::RegisterOffsets() {
    for (const MultiPanelOffset& row : kMultiPanelOffsets) {
        session_.OffsetTable.UnregisterOffset(row.name);
    }
    for (const MultiPanelOffset& row : kMultiPanelOffsets) {
        session_.OffsetTable.RegisterOffset(row.offset, row.dataType, row.name);
    }
}

void cMultiPanelLogic::RefreshData() {
    panelLights_ = 0;
    for (size_t row = 0; row < kMultiPanelLightRows; ++row) {
        UpdateLight(row, static_cast<uint8_t>(1 << row));
    }
    RefreshValues();
    RefreshTexts();
    if (masterBattery_.Data() == 0 || masterAvionics_.Data() == 0) {
        control_.TurnOffDisplay();
        return;
    }
    control_.WriteDisplay(upperText_, lowerText_, panelLights_, forceWrite_);
    forceWrite_ = false;
}

void cMultiPanelLogic::UpdateLight(size_t row, uint8_t bit) {
    if (Value(row) == 1) panelLights_ = static_cast<uint8_t>(panelLights_ | bit);
}

bool cMultiPanelLogic::SecondCourse() const {
    if (MPActions->CourseSel != 0) return MPActions->CourseSel == 2;
    return session_.EngineSelected == 2 || session_.EngineSelected == 4;
}

void cMultiPanelLogic::RefreshValues() {
    speedValue_ = Value(kSpeedRow);
    verticalSpeed_ = RoundTo<int16_t>(Value(kVerticalSpeedRow));
    courseValue_ = RoundTo<int16_t>(Value(SecondCourse() ? kCourse2Row : kCourse1Row));
    headingBug_ = RoundTo<int16_t>(Value(kHeadingRow) * 360 / 65536);
    altitudeValue_ = RoundTo<int32_t>(Value(kAltitudeRow) * kFeetPerMetre / 65536);
}

void cMultiPanelLogic::RefreshTexts() {
    switch (selectorPosition_) {
        case 1:
        case 2:
            SetNumber(upperText_, altitudeValue_, 5);
            SetNumber(lowerText_, verticalSpeed_, 1);
            return;
        case 3:
            SetNumber(upperText_, RoundHalfEven(speedValue_), 1);
            break;
        case 4:
            SetNumber(upperText_, headingBug_, 3);
            break;
        case 5:
            SetNumber(upperText_, courseValue_, 3);
            break;
        default:
            return;
    }
    lowerText_.clear();
}
