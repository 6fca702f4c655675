#include "core/AircraftBinding.h"

#include <utility>
#include <vector>

#include "base/Text.h"

namespace {

uint8_t SpecialModeNamed(const std::string& word) {
    const std::string name = ToLower(word);
    if (name == "maddog") return kMaddogMode;
    return name == "ngx" ? kNGXMode : kStandardMode;
}

}  // namespace

AircraftBinding::AircraftBinding(const Parts& parts) : parts_(parts) {
    parts_.cmbProfiles.Click.Connect([this] {
        parts_.profiles.CurrentProfile = parts_.cmbProfiles.Text();
        ApplyProfile();
    });
}

bool AircraftBinding::BindAircraft(std::string title) {
    if (binding_) return false;
    binding_ = true;
    ReadGear();
    currentAircraft_ = std::move(title);
    const std::string aircraft = currentAircraft_;
    ProfileStore& profiles = parts_.profiles;
    if (profiles.AircraftKnown(aircraft)) {
        profiles.CurrentProfile = profiles.ProfileOfAircraft(aircraft);
    } else {
        profiles.CurrentProfile = ProfileForNew(aircraft);
        profiles.AddAircraft(aircraft, profiles.CurrentProfile);
        FillProfileCombo();
    }
    SelectCurrentProfile();
    profiles.SaveAircraftList();
    profiles.SaveProfileList();
    binding_ = false;
    return true;
}

void AircraftBinding::ReadGear() {
    cOFFSET retractable(parts_.session.Fsuipc, 0x060C, 2);
    retractable.DirectRead(true);
    parts_.session.GearIsRetractable = retractable.Data() != 0;
}

std::string AircraftBinding::ProfileForNew(const std::string& title) {
    if (!parts_.generalSetup.ManualProfile || !AskForProfile) return ProfileStore::kDefault;
    // A configuration window may be open already.
    const bool open = std::exchange(parts_.windows.ModalWindowOpen, true);
    std::string chosen = AskForProfile(title);
    parts_.windows.ModalWindowOpen = open;
    return chosen;
}

void AircraftBinding::FillProfileCombo() {
    parts_.cmbProfiles.Clear();
    for (const std::string& name : parts_.profiles.ProfileNames()) parts_.cmbProfiles.AddItem(name);
}

void AircraftBinding::SelectCurrentProfile() {
    const int32_t place = parts_.profiles.ProfileIndex(parts_.profiles.CurrentProfile);
    if (place > 0) parts_.cmbProfiles.SetListIndex(place - 1);
}

void AircraftBinding::ApplyProfile() {
    ReadSpecialMode();
    parts_.panels.ForEachLogic([](cPanelLogic& logic) {
        logic.LoadSetup();
        logic.SetupChanged();
    });
}

void AircraftBinding::ReadSpecialMode() {
    parts_.session.SpecialMode = kStandardMode;
    cInifile ini = parts_.profiles.OpenProfile("Common");
    std::vector<std::string> keys;
    int32_t count = 0;
    ini.EnumerateCurrentSection(keys, count);
    for (const std::string& key : keys) {
        if (key != "SpecialMode") continue;
        ini.Key = key;
        parts_.session.SpecialMode = SpecialModeNamed(ini.Value());
    }
}
