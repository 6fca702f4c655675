// Kills Orvo.exe while it saves: Kills ORVO.EXE FOLDER [TIMES] [SEED]. FOLDER is emptied and used
// as the program's folder. After each kill every file must say what it said before or what was to
// be saved, and the next start must take it.

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <random>
#include <string>
#include <utility>

#include "bench/driver/Until.h"
#include "bench/kills/SavingActs.h"

using namespace bench;

namespace {

constexpr uint32_t kSaveTimeMs = 10000;
constexpr uint32_t kRestMs = 300;

double Now() {
    LARGE_INTEGER count{}, perSecond{};
    QueryPerformanceCounter(&count);
    QueryPerformanceFrequency(&perSecond);
    return 1000.0 * static_cast<double>(count.QuadPart) / static_cast<double>(perSecond.QuadPart);
}

// Finer than the system's own pause.
void SpinUntil(double time) {
    while (Now() < time) {
    }
}

// When a save began and ended, in milliseconds after the user's act.
struct SaveTime {
    double begin = 0;
    double end = 0;
};

struct Counts {
    int kills = 0, old = 0, complete = 0, between = 0, inside = 0;
};

class KillTest {
  public:
    KillTest(Cockpit& cockpit, uint32_t seed) : cockpit_(cockpit), random_(seed) {}

    // Each act without a kill: how long it takes, and that it changes nothing else. Files of the
    // first time get what every save adds, such as the places of windows.
    bool MeasureSaves(bool first);
    bool Kill(int round);
    bool NothingIsLeftOver() const;
    void ShowFigures() const;

  private:
    bool MeasureSave(const SavingAct& act, bool first);
    SaveTime Watch(const Saving& saving) const;
    double RandomMoment(const SaveTime& time);
    bool Check(const SavingAct& act, const std::string& wrong) const;

    Cockpit& cockpit_;
    std::mt19937 random_;
    int saves_ = 0;
    // By name of the act: what was measured, and what the moments are chosen by.
    std::map<std::string, SaveTime> measured_;
    std::map<std::string, SaveTime> times_;
    std::map<std::string, Counts> counts_;  // by subject
};

bool KillTest::Check(const SavingAct& act, const std::string& wrong) const {
    if (wrong.empty()) return true;
    std::printf("WRONG: %s, %s:\n%s\n", act.subject, act.name, wrong.c_str());
    return false;
}

bool KillTest::MeasureSaves(bool first) {
    for (const auto& acts : SavingActs()) {
        for (const SavingAct& act : acts) {
            if (!MeasureSave(act, first)) return false;
        }
    }
    return true;
}

bool KillTest::MeasureSave(const SavingAct& act, bool first) {
    Saving saving(cockpit_, act, --saves_);
    if (!saving.HasWork()) return true;
    if (!Check(act, saving.Prepare())) return false;
    if (!Check(act, saving.Trigger())) return false;
    const SaveTime time = Watch(saving);
    ::Sleep(kRestMs);
    cockpit_.Orvo().Kill();
    SaveTime& range = measured_.try_emplace(act.name, time).first->second;
    range = {std::min(range.begin, time.begin), std::max(range.end, time.end)};
    times_.try_emplace(act.name, range);
    IniFolder now = IniFolder::Read(cockpit_.Folder());
    if (first) {
        const IniFolder::Entries& before = saving.Before().files.at("Orvo.ini");
        std::erase_if(now.files["Orvo.ini"], [&](const auto& each) {
            return each.first.starts_with("[GeneralSetup]") && !before.contains(each.first);
        });
    }
    return Check(act, now.files == saving.Wanted().files
                          ? ""
                          : "a save without a kill gives something else\n" +
                                Damage(saving.Wanted(), saving.Wanted(), now));
}

// A save puts the copy in the file's place, so its time of writing is another.
SaveTime KillTest::Watch(const Saving& saving) const {
    const std::string file = cockpit_.Folder() + '\\' + saving.Act().file;
    const auto goneAsWanted = [&] {
        return std::ranges::all_of(saving.Before().files, [&](const auto& each) {
            return saving.Wanted().files.contains(each.first) ||
                   GetFileAttributesA((cockpit_.Folder() + '\\' + each.first).c_str()) ==
                       INVALID_FILE_ATTRIBUTES;
        });
    };
    const auto written = [&file] {
        WIN32_FILE_ATTRIBUTE_DATA data{};
        GetFileAttributesExA(file.c_str(), GetFileExInfoStandard, &data);
        return std::pair(data.ftLastWriteTime.dwHighDateTime, data.ftLastWriteTime.dwLowDateTime);
    };
    const double start = Now();
    const auto before = written();
    SaveTime time;
    while (Now() - start < kSaveTimeMs) {
        if (time.begin == 0 &&
            GetFileAttributesA((file + ".new").c_str()) != INVALID_FILE_ATTRIBUTES) {
            time.begin = Now() - start;
        }
        if (written() != before && goneAsWanted()) break;
    }
    time.end = Now() - start;
    return time;
}

// Half of them anywhere, half of them while the copy should be there.
double KillTest::RandomMoment(const SaveTime& time) {
    const bool anywhere = random_() % 2 == 0;
    const double from = anywhere ? 0 : std::min(time.begin, time.end);
    const double to = anywhere ? 1.3 * time.end : time.end;
    return std::uniform_real_distribution<double>(from, to)(random_);
}

bool KillTest::Kill(int round) {
    const auto& subjects = SavingActs();
    const auto& acts = subjects[static_cast<size_t>(round) % subjects.size()];
    size_t next = static_cast<size_t>(round) / subjects.size();
    while (!Saving(cockpit_, acts[next % acts.size()], round).HasWork()) ++next;
    const SavingAct& act = acts[next % acts.size()];

    Saving saving(cockpit_, act, round);
    if (!Check(act, saving.Prepare())) return false;
    const double moment = RandomMoment(times_[act.name]);
    if (!Check(act, saving.Trigger())) return false;
    SpinUntil(Now() + moment);
    cockpit_.Orvo().Kill();

    const IniFolder now = IniFolder::Read(cockpit_.Folder());
    Counts& counts = counts_[act.subject];
    ++counts.kills;
    const bool complete = now.files == saving.Wanted().files;
    const bool old = now.files == saving.Before().files;
    ++(complete ? counts.complete : old ? counts.old : counts.between);
    // A save that nobody watches is faster, and not always as fast.
    times_[act.name].end *= complete ? 0.85 : 1.2;
    const auto& copies = saving.Before().copies;
    if (!std::ranges::includes(copies, now.copies)) ++counts.inside;
    return Check(act, Damage(saving.Before(), saving.Wanted(), now));
}

// Each file has been saved once more.
bool KillTest::NothingIsLeftOver() const {
    const IniFolder now = IniFolder::Read(cockpit_.Folder());
    for (const auto& [name, bytes] : now.copies) std::printf("WRONG: %s stays\n", name.c_str());
    return now.copies.empty();
}

void KillTest::ShowFigures() const {
    std::printf("\n%-18s %7s %7s %7s %9s %14s\n", "killed while saving", "kills", "old", "new",
                "between", "copy left over");
    Counts all;
    const auto show = [](const char* name, const Counts& counts) {
        std::printf("%-19s %7d %7d %7d %9d %14d\n", name, counts.kills, counts.old, counts.complete,
                    counts.between, counts.inside);
    };
    for (const auto& [subject, counts] : counts_) {
        show(subject.c_str(), counts);
        for (int Counts::*each :
             {&Counts::kills, &Counts::old, &Counts::complete, &Counts::between, &Counts::inside}) {
            all.*each += counts.*each;
        }
    }
    show("all", all);
    std::printf("\n%-18s %12s %12s\n", "ms after the act", "copy there", "saved");
    for (const auto& [name, time] : measured_) {
        std::printf("%-18s %12.1f %12.1f\n", name.c_str(), time.begin, time.end);
    }
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 3) {
        std::puts("Kills ORVO.EXE FOLDER [TIMES] [SEED]");
        return 2;
    }
    SetProcessDPIAware();  // its pixels are then those of Orvo's windows
    const int times = argc > 3 ? std::atoi(argv[3]) : 200;
    const auto seed = argc > 4 ? static_cast<uint32_t>(std::strtoul(argv[4], nullptr, 10))
                               : std::random_device()();
    std::printf("seed %lu\n", static_cast<unsigned long>(seed));
    std::fflush(stdout);
    Cockpit cockpit(argv[1], argv[2]);
    if (!cockpit.IsReady()) {
        std::puts("WRONG: the files can't be copied");
        return 1;
    }
    WriteFirstFiles(cockpit);
    cockpit.StartSimulator();
    KillTest test(cockpit, seed);
    bool well = test.MeasureSaves(true) && test.MeasureSaves(false);
    const double start = Now();
    for (int round = 0; round < times && well; ++round) {
        well = test.Kill(round);
        std::fflush(stdout);
    }
    if (well) std::printf("%.2f s a kill\n", (Now() - start) / 1000 / std::max(times, 1));
    well = well && test.MeasureSaves(false) && test.NothingIsLeftOver();
    test.ShowFigures();
    return well ? 0 : 1;
}
