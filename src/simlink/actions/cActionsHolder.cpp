#include "simlink/actions/cActionsHolder.h"

#include "base/Number.h"

void cActionsHolder::LoadSetup() {
    const auto entries = profiles_.ReadProfile(Section());
    whole_ = entries.has_value();
    if (!entries) return;
    SetDefaults();
    Take(*entries);
}

SaveResult cActionsHolder::SaveSetup() {
    if (!whole_) return profiles_.Unread();
    return profiles_.SaveProfile(Section(), [this](IniSection& keys) { return Write(keys); });
}

std::string cActionsHolder::Section() const { return panel_ + FormatInteger(Index); }
