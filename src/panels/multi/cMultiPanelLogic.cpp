// What the panel reads and shows.
#include "panels/multi/cMultiPanelLogic.h"

#include <algorithm>

#include "base/Number.h"
#include "simlink/channel/NGXEventTable.h"

namespace {

// A lower speed is a Mach number.
constexpr double kLowestKnots = 10;

void SetNumber(std::string& text, int64_t value, int digits) {
    text.clear();
    AppendInteger(text, value, digits);
}

uint8_t AsAcceleration(int16_t value) {
    return static_cast<uint8_t>(std::clamp<int16_t>(value, 0, 255));
}

}  // namespace

cMultiPanelLogic::cMultiPanelLogic(const LogicServices& services, ctlMultiPanel& control,
                                   int16_t index)
    : Index(index),
      session_(services.session),
      output_(services.output),
      profiles_(services.profiles),
      clock_(services.clock),
      control_(control),
      power_(session_.OffsetTable) {
    for (const char* name : kMultiPanelNames) offsets_.emplace_back(session_.OffsetTable, name);
}

void cMultiPanelLogic::StartUp() {
    MPActions = std::make_unique<cMultiPanelActionsHolder>(profiles_);
    MPActions->Index = Index;
    MPActions->LoadSetup();
    panelLights_ = 0;
    forceWrite_ = false;
    power_.Register();
    SetupChanged();
}

void cMultiPanelLogic::SetupChanged() {
    if (selectorPosition_ != 0) ApplyRotAcceleration();
    ApplyTrimAcceleration();
    RegisterOffsets();
}

void cMultiPanelLogic::ApplyRotAcceleration() {
    control_.RotAcceleration(AsAcceleration(MPActions->GetRotAcceleration(selectorPosition_)));
}

void cMultiPanelLogic::ApplyTrimAcceleration() {
    control_.TrimAcceleration(AsAcceleration(MPActions->TrimAcceleration));
}

void cMultiPanelLogic::RegisterOffsets() {
    for (const char* name : kMultiPanelNames) session_.OffsetTable.UnregisterOffset(name);
    switch (session_.SpecialMode) {
        case kNGXMode:
            RegisterNGXLights();
            Register(kNGXOffsets);
            break;
        case kMaddogMode:
            Register(kMaddogOffsets);
            maddog_ = {};
            panelLights_ = 0;  // the lights of another mode mean nothing here
            break;
        default:
            Register(kStandardOffsets);
            break;
    }
}

void cMultiPanelLogic::Register(std::span<const MultiPanelOffset> offsets) {
    for (const MultiPanelOffset& each : offsets) {
        session_.OffsetTable.RegisterOffset(each.offset, each.dataType, kMultiPanelNames[each.row]);
    }
}

// A button's light is that of its short function.
void cMultiPanelLogic::RegisterNGXLights() {
    for (size_t row = 0; row < kMultiPanelLightRows; ++row) {
        const auto button = static_cast<int32_t>(row + 1);
        const size_t function = MPActions->NGXGetShortButtonsActions(button);
        session_.OffsetTable.RegisterOffset(NGXEventTable[kNGXRows + function], kNGXLightType,
                                            kMultiPanelNames[row]);
    }
}

void cMultiPanelLogic::RefreshData() {
    if (session_.SpecialMode == kMaddogMode) {
        RefreshMaddog();
        return;
    }
    for (size_t row = 0; row < kMultiPanelLightRows; ++row) {
        UpdateLight(row, static_cast<uint8_t>(1 << row));
    }
    RefreshValues();
    RefreshTexts();
    if (!power_.IsOn()) {
        control_.TurnOffDisplay();
        return;
    }
    control_.WriteDisplay(upperText_, lowerText_, panelLights_, forceWrite_);
    forceWrite_ = false;
}

void cMultiPanelLogic::UpdateLight(size_t row, uint8_t bit) {
    const int lights = Value(row) == 1 ? panelLights_ | bit : panelLights_ & ~bit;
    panelLights_ = static_cast<uint8_t>(lights);
}

bool cMultiPanelLogic::SecondCourse() const {
    if (MPActions->CourseSel != 0) return MPActions->CourseSel == 2;
    return session_.EngineSelected == 2 || session_.EngineSelected == 4;
}

void cMultiPanelLogic::RefreshValues() {
    const bool ngx = session_.SpecialMode == kNGXMode;
    const double degrees = ngx ? 1 : 360.0 / 65536;
    speedValue_ = Value(kSpeedRow);
    verticalSpeed_ = RoundTo<int16_t>(Value(kVerticalSpeedRow));
    courseValue_ = RoundTo<int16_t>(Value(SecondCourse() ? kCourse2Row : kCourse1Row));
    headingBug_ = RoundTo<int16_t>(Value(kHeadingRow) * degrees);
    altitudeValue_ =
        RoundTo<int32_t>(ngx ? Value(kAltitudeRow) : Value(kAltitudeRow) * kFeetPerMetre / 65536);
}

void cMultiPanelLogic::RefreshTexts() {
    switch (selectorPosition_) {
        case 1:
        case 2:
        case 3:
            session_.SpecialMode == kNGXMode ? ShowNGX() : ShowStandard();
            break;
        case 4:
            SetNumber(upperText_, headingBug_, 3);
            lowerText_.clear();
            break;
        case 5:
            SetNumber(upperText_, courseValue_, 3);
            lowerText_.clear();
            break;
        default:
            break;
    }
}

// Positions ALT, VS and IAS.
void cMultiPanelLogic::ShowStandard() {
    if (selectorPosition_ == 3) {
        SetNumber(upperText_, RoundHalfEven(speedValue_), 1);
        lowerText_.clear();
        return;
    }
    SetNumber(upperText_, altitudeValue_, 5);
    SetNumber(lowerText_, verticalSpeed_, 1);
}

// The same positions of the add-on, whose windows can be blank.
void cMultiPanelLogic::ShowNGX() {
    if (selectorPosition_ == 3) {
        upperText_.clear();
        lowerText_.clear();
        if (Value(kSpeedBlankRow) != 0) return;
        if (speedValue_ < kLowestKnots) {
            AppendFixed(upperText_, speedValue_, 3);
        } else {
            AppendInteger(upperText_, RoundHalfEven(speedValue_));
        }
        return;
    }
    SetNumber(upperText_, altitudeValue_, 1);
    lowerText_.clear();
    if (Value(kVerticalSpeedBlankRow) == 0) AppendInteger(lowerText_, verticalSpeed_, 4);
}
