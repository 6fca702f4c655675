// What the panel reads and shows.
#include "panels/multi/cMultiPanelLogic.h"

#include <algorithm>

#include "base/Number.h"
#include "panels/multi/MultiPanelNumber.h"
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
      control_(control),
      offsets_(session_.OffsetTable, kMultiOffsets),
      power_(session_.OffsetTable),
      maddog_(output_, control),
      ngx_(output_, services.clock),
      selector_(output_),
      autoThrottle_(output_),
      values_(session_) {
    for (size_t light = 0; light < kMultiPanelLights; ++light) {
        lightNames_[light] = kMultiOffsets[light].name + (' ' + FormatInteger(Index));
        lights_.emplace_back(session_.OffsetTable, lightNames_[light].c_str());
    }
}

void cMultiPanelLogic::StartUp() {
    MPActions = std::make_unique<cMultiPanelActionsHolder>(profiles_);
    MPActions->Index = Index;
    MPActions->LoadSetup();
    forceWrite_ = false;
    power_.Register();
    SetupChanged();
}

void cMultiPanelLogic::SetupChanged() {
    if (selectorPosition_ != MultiPosition::kNone) ApplyRotAcceleration();
    ApplyTrimAcceleration();
    RegisterOffsets();
    values_.Forget();
}

void cMultiPanelLogic::ApplyRotAcceleration() {
    control_.RotAcceleration(AsAcceleration(MPActions->GetRotAcceleration(selectorPosition_)));
}

void cMultiPanelLogic::ApplyTrimAcceleration() {
    control_.TrimAcceleration(AsAcceleration(MPActions->TrimAcceleration));
}

void cMultiPanelLogic::RegisterOffsets() {
    for (const std::string& name : lightNames_) session_.OffsetTable.UnregisterOffset(name);
    offsets_.RegisterMode(session_.SpecialMode);
    if (session_.SpecialMode == kNGXMode) RegisterNGXLights();
    if (session_.SpecialMode == kMaddogMode) maddog_.Start();
}

// A button's light is that of its short function.
void cMultiPanelLogic::RegisterNGXLights() {
    for (size_t light = 0; light < kMultiPanelLights; ++light) {
        const auto button = static_cast<int32_t>(light + 1);
        const size_t function = MPActions->NGXGetShortButtonsActions(button);
        session_.OffsetTable.RegisterOffset(NGXEventTable[kNGXRows + function], kNGXLightType,
                                            lightNames_[light]);
    }
}

void cMultiPanelLogic::RefreshData() {
    if (session_.SpecialMode == kMaddogMode) {
        values_.Take();
        maddog_.Refresh(Value(MultiValue::kMaster) == 1);
        return;
    }
    RefreshValues();
    RefreshTexts();
    if (!power_.IsOn()) {
        control_.TurnOffDisplay();
        return;
    }
    control_.WriteDisplay(upperText_, lowerText_, Lights(), forceWrite_);
    forceWrite_ = false;
}

// Only 1 lights a button.
uint8_t cMultiPanelLogic::Lights() const {
    unsigned lights = 0;
    for (size_t light = 0; light < kMultiPanelLights; ++light) {
        const NamedOffset& state =
            session_.SpecialMode == kNGXMode ? lights_[light] : offsets_[light];
        if (state.Data() == 1) lights |= 1U << light;
    }
    return static_cast<uint8_t>(lights);
}

bool cMultiPanelLogic::SecondCourse() const {
    if (MPActions->CourseSel != 0) return MPActions->CourseSel == 2;
    return session_.EngineSelected == 2 || session_.EngineSelected == 4;
}

void cMultiPanelLogic::RefreshValues() {
    const bool ngx = session_.SpecialMode == kNGXMode;
    const double degrees = ngx ? 1 : 360.0 / 65536;
    speedValue_ = Value(MultiValue::kSpeed);
    verticalSpeed_ = RoundTo<int16_t>(Value(MultiValue::kVerticalSpeed));
    courseValue_ =
        RoundTo<int16_t>(Value(SecondCourse() ? MultiValue::kCourse2 : MultiValue::kCourse1));
    headingBug_ = RoundTo<int16_t>(Value(MultiValue::kHeading) * degrees);
    altitudeValue_ = RoundTo<int32_t>(ngx ? Value(MultiValue::kAltitude)
                                          : Value(MultiValue::kAltitude) * kFeetPerMetre / 65536);
    values_.Take();
}

void cMultiPanelLogic::RefreshTexts() {
    switch (selectorPosition_) {
        case MultiPosition::kALT:
        case MultiPosition::kVS:
        case MultiPosition::kIAS:
            session_.SpecialMode == kNGXMode ? ShowNGX() : ShowStandard();
            break;
        case MultiPosition::kHDG:
            SetNumber(upperText_, headingBug_, 3);
            lowerText_.clear();
            break;
        case MultiPosition::kCRS:
            SetNumber(upperText_, courseValue_, 3);
            lowerText_.clear();
            break;
        default:
            break;
    }
}

// Positions ALT, VS and IAS.
void cMultiPanelLogic::ShowStandard() {
    if (selectorPosition_ == MultiPosition::kIAS) {
        SetNumber(upperText_, RoundHalfEven(speedValue_), 1);
        lowerText_.clear();
        return;
    }
    SetNumber(upperText_, altitudeValue_, 5);
    SetNumber(lowerText_, verticalSpeed_, 1);
}

// The same positions of the add-on, whose windows can be blank.
void cMultiPanelLogic::ShowNGX() {
    if (selectorPosition_ == MultiPosition::kIAS) {
        upperText_.clear();
        lowerText_.clear();
        if (Value(MultiValue::kSpeedBlank) != 0) return;
        if (speedValue_ < kLowestKnots) {
            AppendFixed(upperText_, speedValue_, 3);
        } else {
            AppendInteger(upperText_, RoundHalfEven(speedValue_));
        }
        return;
    }
    SetNumber(upperText_, altitudeValue_, 1);
    lowerText_.clear();
    if (Value(MultiValue::kVerticalSpeedBlank) == 0) AppendInteger(lowerText_, verticalSpeed_, 4);
}
