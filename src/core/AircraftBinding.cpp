#include "core/AircraftBinding.h"

#include <algorithm>
#include <utility>

#include "base/Text.h"

AircraftBinding::AircraftBinding(const Parts& parts) : parts_(parts) {
    parts_.cmbProfiles.Click.Connect([this] {
        parts_.profiles.CurrentProfile = parts_.cmbProfiles.Text();
        ApplyProfile();
    });
}

bool AircraftBinding::BindAircraft(std::string title) {
    if (binding_) return false;
    binding_ = true;
    gearKnown_ = false;
    AskForGear();
    currentAircraft_ = std::move(title);
    Settle();
    binding_ = false;
    return true;
}

void AircraftBinding::Settle() {
    unsettled_ = !ReadLists();
    if (unsettled_ || !SettleProfile()) return;
    SelectCurrentProfile();
    unsaved_ = true;
    SaveLists();
}

// The options are in the same file, and say whether the user wants to be asked.
bool AircraftBinding::ReadLists() {
    if (!parts_.generalSetup.ReadWhatIsMissing()) return false;
    if (!parts_.profiles.ReadWhatIsMissing()) return false;
    if (parts_.cmbProfiles.Items() != parts_.profiles.ProfileNames()) {
        FillProfileCombo();
    }
    return true;
}

// A window that is open now may hold the bindings that it was filled from.
bool AircraftBinding::Waits() const {
    if (binding_ || parts_.windows.ModalWindowOpen) return false;
    return unsaved_ || parts_.profiles.ProfileMissed() || !parts_.profiles.ListsAreRead() ||
           (unsettled_ && parts_.session.FSConnected);
}

void AircraftBinding::TryAgain() {
    if (!Waits()) return;
    binding_ = true;
    if (unsettled_ && parts_.session.FSConnected) {
        Settle();
    } else if (!parts_.profiles.ListsAreRead() && ReadLists()) {
        SelectCurrentProfile();
    }
    if (parts_.profiles.ProfileMissed()) ApplyProfile();
    SaveLists();
    binding_ = false;
}

// The profiles first: a program that ends in between leaves no aircraft with a profile that isn't
// in the list.
bool AircraftBinding::SaveLists() {
    if (!unsaved_ && !editing_) return true;
    const SaveResult profiles = parts_.profiles.SaveProfileList();
    unsaved_ = !profiles || !parts_.profiles.SaveAircraftList();
    return !unsaved_;
}

void AircraftBinding::ListsEdited() {
    editing_ = false;
    unsaved_ = true;
    SaveLists();
    FillProfileCombo();
    ProfileStore& profiles = parts_.profiles;
    if (profiles.AircraftKnown(currentAircraft_)) {
        profiles.CurrentProfile = profiles.ProfileToFly(currentAircraft_);
    }
    SelectCurrentProfile();
}

bool AircraftBinding::SettleProfile() {
    ProfileStore& profiles = parts_.profiles;
    if (profiles.AircraftKnown(currentAircraft_)) {
        profiles.CurrentProfile = profiles.ProfileToFly(currentAircraft_);
        return true;
    }
    const auto profile = ProfileForNew(currentAircraft_);
    if (!profile) {
        currentAircraft_.clear();
        return false;
    }
    profiles.CurrentProfile = *profile;
    profiles.AddAircraft(currentAircraft_, *profile);
    FillProfileCombo();
    AircraftAdded.Raise();
    return true;
}

void AircraftBinding::AskForGear() {
    if (gearKnown_) return;
    const auto retractable = parts_.session.ReadOffset(0x060C, 2);
    if (!retractable) return;
    gearKnown_ = true;
    parts_.session.GearIsRetractable = *retractable != 0;
}

std::optional<std::string> AircraftBinding::ProfileForNew(const std::string& title) {
    if (!parts_.generalSetup.ManualProfile || !AskForProfile) return ProfileStore::kDefault;
    const ModalWindow open(parts_.windows);
    return AskForProfile(title);
}

void AircraftBinding::FillProfileCombo() {
    parts_.cmbProfiles.SetItems(parts_.profiles.ProfileNames());
}

void AircraftBinding::SelectCurrentProfile() {
    const auto& names = parts_.cmbProfiles.Items();
    const auto found = std::ranges::find_if(names, [this](const std::string& name) {
        return EqualNoCase(name, parts_.profiles.CurrentProfile);
    });
    if (found == names.end()) return;
    parts_.cmbProfiles.SetListIndex(static_cast<int32_t>(found - names.begin()));
}

void AircraftBinding::ApplyProfile() {
    const ProfileReading reading(parts_.profiles);
    const bool read = ReadSpecialMode();
    if (read) parts_.session.Acts.Drop(PendingActs::Lasts::Binding);
    parts_.panels.ForEachLogic([read](cPanelLogic& logic) {
        logic.LoadSetup();
        if (read) logic.SetupChanged();
    });
}

// The key's name counts with its case.
bool AircraftBinding::ReadSpecialMode() {
    const auto entries = parts_.profiles.ReadProfile("Common");
    if (!entries) return false;
    parts_.session.SpecialMode = kStandardMode;
    for (const auto& [key, value] : *entries) {
        if (key == "SpecialMode") parts_.session.SpecialMode = SpecialModeNamed(value);
    }
    return true;
}
