#include "ui/profiles/ProfileChecks.h"

#include <algorithm>

#include "base/Text.h"
#include "config/ProfileName.h"

namespace {

SaveResult Invalid() {
    return SaveResult::Impossible("Only letters and numbers are admitted in profiles names");
}

struct DeletionCheck {
    bool (*refuses)(const ProfileStore& profiles, const std::string& profile);
    const char* text;
    MsgBoxIcon icon;
};

// The first that refuses counts.
constexpr DeletionCheck kDeletionChecks[] = {
    {[](const ProfileStore&, const std::string& profile) { return profile.empty(); },
     "No profile is currently selected", MsgBoxIcon::Information},
    {[](const ProfileStore& profiles, const std::string& profile) {
         return profiles.HasAircraft(profile);
     },
     "The selected profile is bound to at list one Aircraft. You can't delete a profile bound.",
     MsgBoxIcon::Critical},
    {[](const ProfileStore& profiles, const std::string& profile) {
         return EqualNoCase(profiles.CurrentProfile, profile);
     },
     "The selected profile is currently in use. You can't delete the profile in use.",
     MsgBoxIcon::Critical},
};

}  // namespace

SaveResult CheckNewName(const ProfileStore& profiles, const std::string& name) {
    if (!ProfileNameValid(name)) return Invalid();
    if (profiles.ProfileNameFree(name)) return {};
    return SaveResult::Impossible("Profile name already in use.");
}

// One that differs from a profile of the list in case alone is neither that one nor a new one.
SaveResult CheckAircraftsProfile(const ProfileStore& profiles, const std::string& name) {
    if (std::ranges::find(profiles.ProfileNames(), name) != profiles.ProfileNames().end()) {
        return {};
    }
    return name.empty() ? Invalid() : CheckNewName(profiles, name);
}

std::optional<MsgBoxRequest> RefusalToDelete(const ProfileStore& profiles,
                                             const std::string& profile) {
    for (const DeletionCheck& check : kDeletionChecks) {
        if (!check.refuses(profiles, profile)) continue;
        return MsgBoxRequest{check.text, "  ORVO", check.icon, MsgBoxButtons::Ok};
    }
    return std::nullopt;
}
