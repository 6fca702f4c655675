// What stays behind, and the pace of the tick, while the user does this and that.
#include <cstdio>
#include <functional>

#include "bench/driver/Until.h"
#include "bench/figures/Measuring.h"

namespace bench {

namespace {

constexpr int kFirstOpenings = 10;
constexpr int kMoreOpenings = 200;
constexpr uint32_t kRestMs = 1000;
constexpr uint32_t kDragMs = 12000;

bool StartConnected(Cockpit& cockpit) {
    StartBench(cockpit);
    return StartOrvo(cockpit, "").has_value();
}

bool OpenAndClose(Cockpit& cockpit, int times) {
    for (int i = 0; i < times; ++i) {
        const HWND window = cockpit.OpenGeneralOptions();
        if (!window) return false;
        ClickTab(FindShownChild(window, "SysTabControl32", std::nullopt), 1);
        PressButton(FindShownChild(window, "Button", "Cancel"));
        if (!Until(kPatienceMs, [&] { return cockpit.FrontWindow() == cockpit.MainWindow(); })) {
            return false;
        }
    }
    ::Sleep(kRestMs);
    return true;
}

// Of the time in which `during` goes on, if it is given.
bool ShowPace(Cockpit& cockpit, const char* what, const std::function<bool()>& during = {}) {
    cockpit.Simulator("pace 1");
    if (during && !during()) return false;
    std::string pace;
    double median = 0;
    double percentile99 = 0;
    Until(kPatienceMs, [&] { return (pace = cockpit.Simulator("pace 1000")) != "none"; });
    if (std::sscanf(pace.c_str(), "median %lf ms, 99th percentile %lf", &median, &percentile99) !=
        2) {
        return false;
    }
    ShowRow(what, {median, percentile99});
    return true;
}

}  // namespace

bool ShowResources(Cockpit& cockpit, uint32_t /*seconds*/) {
    if (!StartConnected(cockpit) || !OpenAndClose(cockpit, kFirstOpenings)) return false;
    const Resources before = ResourcesOf(cockpit.Orvo().Id());
    if (!OpenAndClose(cockpit, kMoreOpenings)) return false;
    const Resources after = ResourcesOf(cockpit.Orvo().Id());
    EndOrvo(cockpit);
    ShowHead("General Options opened and closed", {"10 times", "210 times"});
    ShowRow("private bytes, MiB", {Mebi(before.privateBytes), Mebi(after.privateBytes)});
    return ShowCounts(before, after);
}

bool ShowLongRun(Cockpit& cockpit, uint32_t seconds) {
    if (!StartConnected(cockpit)) return false;
    cockpit.Simulator("vary 1");
    ::Sleep(kRestMs);
    const Resources before = ResourcesOf(cockpit.Orvo().Id());
    ::Sleep(seconds * 1000);
    const Resources after = ResourcesOf(cockpit.Orvo().Id());
    EndOrvo(cockpit);
    ShowHead("all changes at every tick", {"at first", "in the end"});
    ShowRow("private bytes, MiB", {Mebi(before.privateBytes), Mebi(after.privateBytes)});
    return ShowCounts(before, after);
}

bool ShowPaces(Cockpit& cockpit, uint32_t /*seconds*/) {
    if (!StartConnected(cockpit)) return false;
    ShowHead("1,000 ticks as the simulator sees them, ms", {"median", "99 %"});
    const HWND main = cockpit.MainWindow();
    const auto isInFront = [&](HWND window) {
        return Until(kPatienceMs, [&] { return cockpit.FrontWindow() == window; });
    };
    ShowWindow(main, SW_HIDE);
    if (!ShowPace(cockpit, "no window")) return false;
    const HWND options = cockpit.OpenGeneralOptions();
    if (!options || !ShowPace(cockpit, "General Options open")) return false;
    PressButton(FindShownChild(options, "Button", "Cancel"));
    if (!isInFront(main) || !ShowPace(cockpit, "main window dragged",
                                      [main] { return DragWindow(main, 60, 40, kDragMs); })) {
        return false;
    }
    HWND box = nullptr;
    PressButton(FindShownChild(main, "Button", "Quit"));
    if (!Until(kPatienceMs, [&] { return (box = cockpit.Box(" ORVO - Quit request")); }) ||
        !ShowPace(cockpit, "message box open")) {
        return false;
    }
    PressBoxButton(box, IDOK);
    return cockpit.Orvo().WaitForEnd(kPatienceMs).has_value();
}

}  // namespace bench
