#include "bench/virtual/FilesWatch.h"

#include "base/IniText.h"
#include "base/Text.h"

namespace {

constexpr const char* kLists[] = {"profiles", "aircrafts"};
constexpr const char* kListsFile = "c:\\orvo\\orvo.ini";

}  // namespace

FilesWatch::FilesWatch(const VirtualFiles& files)
    : files_(files), changes_(files.ChangeCount()), before_(All(files)) {}

void FilesWatch::TakeAnswer(const MsgBoxRequest& request, MsgBoxResult said) {
    const bool deletes = request.text.starts_with("Are you sure you want to delete");
    if (deletes && said == MsgBoxResult::Ok) ++deletions_;
    if (request.text.starts_with("Import successfully")) imported_ = true;
}

FilesWatch::Files FilesWatch::All(const VirtualFiles& files) {
    Files all;
    for (const std::string& path : files.Paths()) {
        if (!path.ends_with(".ini")) continue;
        const IniText text(files.Look(path).value_or(""));
        Names& names = all[path];
        for (const std::string& section : text.Sections()) names.insert(ToLower(section));
        if (path != kListsFile) continue;
        // An empty list has no section.
        for (const char* list : kLists) {
            names.erase(list);
            for (const std::string& key : text.Keys(list)) {
                names.insert(list + ('\n' + ToLower(key)));
            }
        }
    }
    return all;
}

std::string FilesWatch::Lost() {
    if (files_.ChangeCount() == changes_) return {};
    changes_ = files_.ChangeCount();
    Files now = All(files_);
    std::string lost;
    const auto look = [&](const std::string& path, const Names& names) {
        for (const std::string& name : names) {
            if (!now[path].contains(name) && !MayGo(path, name)) lost = path + ": " + name;
        }
    };
    look(kListsFile, before_[kListsFile]);
    for (const auto& [path, names] : before_) {
        if (path != kListsFile) look(path, names);
    }
    before_ = std::move(now);
    imported_ = false;
    return lost;
}

// A deleted profile leaves the list first, which is in another file.
bool FilesWatch::MayGo(const std::string& path, const std::string& name) {
    const std::string key = kLists[0] + std::string("\n");
    if (path == kListsFile && name.starts_with(key) && deletions_ > 0) {
        --deletions_;
        deleted_.insert(name.substr(key.size()));
        return true;
    }
    if (imported_ && path != kListsFile) return true;
    const size_t begin = path.rfind('\\') + 1;
    return !files_.Look(path) && deleted_.contains(path.substr(begin, path.rfind('.') - begin));
}

std::string FilesWatch::Unsaved(VirtualCockpit& cockpit) {
    VirtualPlatform& machine = cockpit.machine;
    const ProfileStore& running = cockpit.program->Profiles;
    ProfileStore saved(machine.ini, machine.files, machine.clock, machine.process.ProgramFolder());
    saved.LoadProfileList();
    saved.LoadAircraftList();
    if (saved.ProfileNames() != running.ProfileNames()) return "the list of profiles isn't saved";
    if (saved.AircraftNames() != running.AircraftNames()) return "the aircraft aren't saved";
    for (const std::string& title : saved.AircraftNames()) {
        if (saved.ProfileOfAircraft(title) != running.ProfileOfAircraft(title)) {
            return "the profile isn't saved of " + title;
        }
    }
    return {};
}
