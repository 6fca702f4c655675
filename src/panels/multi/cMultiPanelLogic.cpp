// What the panel reads and shows.
#include "panels/multi/cMultiPanelLogic.h"

#include <algorithm>

#include "base/Number.h"
#include "panels/multi/MultiPanelNumber.h"
#include "simlink/channel/NGXEventTable.h"

namespace {

uint8_t AsAcceleration(int16_t value) {
    return static_cast<uint8_t>(std::clamp<int16_t>(value, 0, 255));
}

std::array<std::string, kMultiPanelLights> LightNames(int16_t panel) {
    std::array<std::string, kMultiPanelLights> names;
    for (size_t light = 0; light < kMultiPanelLights; ++light) {
        names[light] = kMultiOffsets[light].name + (' ' + FormatInteger(panel));
    }
    return names;
}

std::array<OffsetRow, kMultiPanelLights> LightRows(
    const std::array<std::string, kMultiPanelLights>& names) {
    std::array<OffsetRow, kMultiPanelLights> rows{};
    for (size_t light = 0; light < kMultiPanelLights; ++light) {
        rows[light] = {names[light].c_str(), 0, kNGXLightType, kNGXMode};
    }
    return rows;
}

}  // namespace

cMultiPanelLogic::cMultiPanelLogic(const LogicServices& services, ctlMultiPanel& control,
                                   int16_t index)
    : cPanelLogic(services.session, control),
      Index(index),
      output_(services.output),
      profiles_(services.profiles),
      control_(control),
      offsets_(session_.OffsetTable, kMultiOffsets),
      lightNames_(LightNames(index)),
      lightRows_(LightRows(lightNames_)),
      lights_(session_.OffsetTable, lightRows_),
      power_(session_.OffsetTable),
      maddog_(output_, control),
      ngx_(output_, services.clock),
      standard_(session_),
      selector_(output_),
      autoThrottle_(output_),
      values_(session_, offsets_) {}

void cMultiPanelLogic::StartUp() {
    // Started anew while the file can't be read, it keeps the actions that it has.
    if (!MPActions) MPActions = std::make_unique<cMultiPanelActionsHolder>(profiles_);
    MPActions->Index = Index;
    MPActions->LoadSetup();
    forceWrite_ = false;
    power_.Register();
    SetupChanged();
}

void cMultiPanelLogic::ApplySetup() {
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

// A button's light in the NGX is that of its short function.
void cMultiPanelLogic::RegisterOffsets() {
    for (size_t light = 0; light < kMultiPanelLights; ++light) {
        const auto button = static_cast<int32_t>(light) + MultiButton::kAP;
        const size_t function = MPActions->NGXGetShortButtonsActions(button);
        lightRows_[light].offset = NGXEventTable[kNGXRows + function];
    }
    lights_.RegisterMode(session_.SpecialMode);
    offsets_.RegisterMode(session_.SpecialMode);
    if (session_.SpecialMode == kMaddogMode) maddog_.Start();
}

void cMultiPanelLogic::Refresh() {
    if (session_.SpecialMode == kMaddogMode) {
        values_.Refresh();
        maddog_.Refresh(offsets_[MultiValue::kMaster].Data() == 1);
        return;
    }
    values_.Refresh();
    values_.Show(selectorPosition_, SecondCourse(), upperText_, lowerText_);
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
        const OffsetRows& rows = session_.SpecialMode == kNGXMode ? lights_ : offsets_;
        if (rows[light].Data() == 1) lights |= 1U << light;
    }
    return static_cast<uint8_t>(lights);
}

bool cMultiPanelLogic::SecondCourse() const {
    if (MPActions->CourseSel != 0) return MPActions->CourseSel == 2;
    return session_.EngineSelected == 2 || session_.EngineSelected == 4;
}
