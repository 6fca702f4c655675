#include "simlink/actions/cActionsHolder.h"

#include "base/Number.h"

void cActionsHolder::LoadSetup() {
    Profile = profiles_.CurrentProfile;
    const auto entries = profiles_.ReadProfile(Section());
    whole_ = entries.has_value();
    if (!entries) return;
    SetDefaults();
    Take(*entries);
}

SaveResult cActionsHolder::ReadResult() const {
    return whole_ ? SaveResult() : profiles_.Files.Unread(Profile);
}

SaveResult cActionsHolder::SaveSetup() {
    if (!whole_) return ReadResult();
    return profiles_.Files.Save(Profile, Section(),
                                [this](IniSection& keys) { return Write(keys); });
}

std::string cActionsHolder::Section() const { return panel_ + FormatInteger(Index); }
