#pragma once

#include <optional>
#include <string>

#include "config/ProfileStore.h"
#include "toolkit/UiBackend.h"

// What the user may do with profiles, and what a refusal says.

// For a profile that is to be made. An empty name passes.
SaveResult CheckNewName(const ProfileStore& profiles, const std::string& name);

// For the profile of an aircraft, one of the list or a new one.
SaveResult CheckAircraftsProfile(const ProfileStore& profiles, const std::string& name);

// Why a profile can't be deleted; nothing when it can. An empty name means that none is selected.
std::optional<MsgBoxRequest> RefusalToDelete(const ProfileStore& profiles,
                                             const std::string& profile);
