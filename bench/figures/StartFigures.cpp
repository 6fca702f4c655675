// What a start takes, beside that of the least program of its kind.
#include "bench/driver/Until.h"
#include "bench/figures/Measuring.h"

namespace bench {

namespace {

constexpr int kStarts = 10;
constexpr uint32_t kRestMs = 1000;

struct Start {
    std::vector<double> milliseconds;
    Resources resources;
};

// One start, from the call to the icon that is seen, and the end. False when there is none.
bool MeasureStart(const std::string& program, const std::string& folder, Start& start) {
    const uint64_t without = PictureOfTrayIcon();
    const double began = Now();
    const Process process('"' + program + '"', folder);
    while (PictureOfTrayIcon() == without) {
        if (Now() - began > kPatienceMs) return false;
        ::Sleep(1);
    }
    start.milliseconds.push_back(Now() - began);
    ::Sleep(kRestMs);
    start.resources = ResourcesOf(process.Id());
    CloseWindowsOf(process);
    return process.WaitForEnd(kPatienceMs).has_value() &&
           Until(kPatienceMs, [&] { return PictureOfTrayIcon() == without; });
}

}  // namespace

bool ShowStarts(Cockpit& cockpit, uint32_t /*seconds*/) {
    cockpit.WriteIni("[GeneralSetup]\r\nLoadWithoutPanels=1\r\n");
    Start empty, orvo, warming;
    const std::string emptyWindow = OwnFolder() + "\\EmptyWindow.exe";
    const std::string program = cockpit.Folder() + "\\Orvo.exe";
    // The first of all starts the task bar as well.
    if (!MeasureStart(emptyWindow, cockpit.Folder(), warming)) return false;
    if (!MeasureStart(program, cockpit.Folder(), warming)) return false;
    for (int i = 0; i < kStarts; ++i) {
        if (!MeasureStart(emptyWindow, cockpit.Folder(), empty)) return false;
        if (!MeasureStart(program, cockpit.Folder(), orvo)) return false;
    }
    ShowHead("", {"Orvo.exe", "EmptyWindow"});
    ShowRow("start to icon, ms, median of 10",
            {Median(orvo.milliseconds), Median(empty.milliseconds)});
    ShowRow("private bytes, MiB",
            {Mebi(orvo.resources.privateBytes), Mebi(empty.resources.privateBytes)});
    ShowCounts(orvo.resources, empty.resources);
    return true;
}

}  // namespace bench
