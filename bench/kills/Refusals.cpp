// Orvo.exe where nothing can be saved: Refusals ORVO.EXE FOLDER MOUNT. FOLDER lies on a small disk
// of its own, which Linux knows as MOUNT; it is filled, and later mounted for reading only. Each
// save must be refused and told, each file stay as it was; and all must be saved when the disk
// takes it.

#include <algorithm>
#include <cstdio>
#include <iostream>
#include <string>

#include "bench/driver/Until.h"
#include "bench/kills/SavingActs.h"

using namespace bench;

namespace {

constexpr uint32_t kSoonMs = 10000;
constexpr uint32_t kRestMs = 500;

// Writes to a file until it takes no byte more.
void Fill(const std::string& path) {
    const HANDLE file =
        CreateFileA(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
    const std::string block(65536, 'x');
    DWORD size = static_cast<DWORD>(block.size());
    while (size > 0) {
        DWORD written = 0;
        if (!WriteFile(file, block.data(), size, &written, nullptr) || written == 0) size /= 2;
    }
    CloseHandle(file);
}

// The script around this program mounts the disk anew, for reading only ("ro") or not ("rw").
bool Remount(const char* how) {
    std::printf("@mount %s\n", how);
    std::fflush(stdout);
    std::string answer;
    return std::getline(std::cin, answer) && answer.starts_with("ok");
}

bool Check(const SavingAct& act, const std::string& wrong) {
    if (wrong.empty()) return true;
    std::printf("WRONG: %s, %s: %s\n", act.subject, act.name, wrong.c_str());
    return false;
}

// The user is told of what he has asked for; an aircraft is bound without a word, later.
std::string Refused(Cockpit& cockpit, const SavingAct& act) {
    if (!act.trigger) return "";
    const char* title = "  ORVO";
    const auto box = [&] { return cockpit.Box(title); };
    if (!Until(kSoonMs, [&] { return box() != nullptr; })) return "no box";
    const std::string told = BoxText(box());
    PressBoxButton(box(), IDOK);
    std::string line = told;
    std::ranges::replace(line, '\n', ' ');
    std::printf("  %-16s %s\n", act.name, line.c_str());
    return told.find("can't be saved") == std::string::npos ? "it isn't told" : "";
}

template <class Try>
bool ForEachAct(Cockpit& cockpit, Try attempt) {
    for (const auto& acts : SavingActs()) {
        for (const SavingAct& act : acts) {
            Saving saving(cockpit, act, 1);
            if (!saving.HasWork()) continue;
            if (!Check(act, saving.Prepare())) return false;
            if (!Check(act, saving.Trigger())) return false;
            if (!Check(act, attempt(saving))) return false;
            cockpit.Orvo().Kill();
        }
    }
    return true;
}

bool AllIsRefused(Cockpit& cockpit) {
    return ForEachAct(cockpit, [&](const Saving& saving) -> std::string {
        std::string wrong = Refused(cockpit, saving.Act());
        ::Sleep(kRestMs);
        if (!wrong.empty()) return wrong;
        if (!cockpit.Orvo().IsRunning()) return "Orvo has ended";
        const IniFolder now = IniFolder::Read(cockpit.Folder());
        if (!now.copies.empty()) return "a copy is left over";
        return Damage(saving.Before(), saving.Before(), now);
    });
}

bool AllIsSaved(Cockpit& cockpit) {
    return ForEachAct(cockpit, [&](const Saving& saving) -> std::string {
        const std::string& file = saving.Act().file;
        const bool saved = Until(kSoonMs, [&] {
            // Orvo adds options of its own to those that change.
            const IniFolder now = IniFolder::Read(cockpit.Folder());
            const auto& entries = now.files.find(file);
            return entries != now.files.end() &&
                   std::ranges::includes(entries->second, saving.Wanted().files.at(file));
        });
        return saved ? "" : "it isn't saved";
    });
}

bool Say(const char* what, bool well) {
    std::printf("%s %s\n", well ? "ok   " : "WRONG", what);
    std::fflush(stdout);
    return well;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 3) {
        std::puts("Refusals ORVO.EXE FOLDER");
        return 2;
    }
    SetProcessDPIAware();  // its pixels are then those of Orvo's windows
    Cockpit cockpit(argv[1], argv[2]);
    const std::string filler = cockpit.Folder() + "\\filler";
    WriteFirstFiles(cockpit);
    cockpit.StartSimulator();
    bool well = Say("the folder is set up", cockpit.IsReady());
    Fill(filler);
    well = well && Say("a full disk refuses each save, and nothing is lost", AllIsRefused(cockpit));
    DeleteFileA(filler.c_str());
    well = well && Say("the disk is mounted for reading only", Remount("ro")) &&
           Say("that refuses each save, and nothing is lost", AllIsRefused(cockpit));
    well = Say("the disk takes files again", Remount("rw")) && well &&
           Say("all is saved", AllIsSaved(cockpit));
    return well ? 0 : 1;
}
