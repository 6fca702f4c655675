#include "panels/switch/cSwitchPanelLogic.h"

#include "simlink/devices/GearLeg.h"

namespace {

constexpr uint8_t kFS2004 = 7;

}  // namespace

cSwitchPanelLogic::cSwitchPanelLogic(const LogicServices& services, ctlSwitchPanel& control,
                                     int16_t index)
    : cPanelLogic(services.session, control),
      Index(index),
      output_(services.output),
      profiles_(services.profiles),
      control_(control),
      offsets_(session_.OffsetTable, kSwitchOffsets),
      values_(session_),
      gearLever_(output_) {}

void cSwitchPanelLogic::StartUp() {
    SPActions = std::make_unique<cSwitchPanelActionsHolder>(profiles_);
    SPActions->Index = Index;
    LoadSetup();
    SetupChanged();
}

void cSwitchPanelLogic::ApplySetup() {
    offsets_.RegisterMode(session_.SpecialMode);
    values_.Forget();
}

// FS2004 doesn't tell whether the gear is retractable.
bool cSwitchPanelLogic::GearShown() const {
    return session_.GearIsRetractable ||
           (session_.FSVersion == kFS2004 && SPActions->RetractableGear);
}

void cSwitchPanelLogic::Refresh() {
    values_.Take();
    std::array<Color, 3> lights{};
    if (GearShown() && offsets_[kMasterBattery].Data() != 0) {
        constexpr SwitchValue kLegs[] = {kGearNose, kGearLeft, kGearRight};
        size_t light = 0;
        for (const SwitchValue leg : kLegs) {
            lights[light++] = GearLamp(GearLegAt(offsets_[leg].IntegerData()));
        }
    }
    if (lights == remembered_) return;
    control_.ChangeLights(lights[0], lights[1], lights[2]);
    remembered_ = lights;
}
