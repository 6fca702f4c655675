#include "config/ProfileFiles.h"

#include <utility>

#include "config/ProfileName.h"
#include "platform/Patience.h"

namespace {

bool HasFile(const std::string& profile) {
    return !profile.empty() && ProfileNameValid(profile) && !ProfileNameReserved(profile);
}

}  // namespace

ProfileFiles::ProfileFiles(IniService& ini, FilePort& files, Clock& clock,
                           std::string programFolder)
    : ini_(ini, files), files_(files), clock_(clock), programFolder_(std::move(programFolder)) {}

std::optional<IniText> ProfileFiles::Read(const std::string& profile) const {
    if (!HasFile(profile)) return IniText("");
    return ini_.Read(PathOf(profile));
}

SaveResult ProfileFiles::SavePatiently(
    const std::string& profile, const std::function<bool(const std::string& path)>& save) const {
    if (!HasFile(profile)) return Unread(profile);
    const std::string path = PathOf(profile);
    const bool saved = Patience(clock_, kSavePatienceMs).Try([&] { return save(path); });
    return ini_.Result(saved, path);
}

SaveResult ProfileFiles::Save(const std::string& profile, const std::string& section,
                              const std::function<bool(IniSection&)>& write) const {
    return SavePatiently(profile,
                         [&](const std::string& path) { return ini_.Save(path, section, write); });
}

SaveResult ProfileFiles::SaveSections(const std::string& profile,
                                      const IniSections& sections) const {
    return SavePatiently(
        profile, [&](const std::string& path) { return ini_.SaveSections(path, sections); });
}

void ProfileFiles::Delete(const std::string& profile) const {
    if (!HasFile(profile)) return;
    const std::string path = PathOf(profile);
    static_cast<void>(Patience(clock_, kSavePatienceMs).Try([&] {
        return !files_.Exists(path) || files_.Delete(path);
    }));
}

SaveResult ProfileFiles::Unread(const std::string& profile) const {
    if (!HasFile(profile)) {
        return SaveResult::Impossible("No profile is in use, so there is nowhere to save to.");
    }
    return SaveResult::Unread(PathOf(profile));
}
