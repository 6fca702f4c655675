// What the window costs, hidden and shown, while what it shows changes.
#include "bench/driver/Until.h"
#include "bench/figures/Measuring.h"
#include "bench/flight/ScriptedFlight.h"

namespace bench {

namespace {

constexpr struct {
    const char* what;
    const char* order;
} kChanges[] = {{"nothing changes", "vary 0"},
                {"20 changes a second", "vary 5"},
                {"all changes at every tick", "vary 1"}};

bool ShowState(Cockpit& cockpit, const LinuxProcess& orvo, const std::string& state,
               uint32_t seconds) {
    for (const auto& changes : kChanges) {
        cockpit.Simulator(changes.order);
        ::Sleep(500);
        const Spent spent = Spend(cockpit, orvo, seconds);
        ShowRow(state + ", " + changes.what, {spent.cpuMsPerSecond, spent.ticks.perSecond,
                                              spent.ticks.median, spent.ticks.percentile99});
    }
    return true;
}

}  // namespace

bool ShowWindowCosts(Cockpit& cockpit, uint32_t seconds) {
    StartBench(cockpit);
    const auto orvo = StartOrvo(cockpit, kFlightTiles);
    if (!orvo) return false;
    ShowHead("", {"cpu, ms/s", "ticks/s", "median, ms", "99 %, ms"});
    ShowState(cockpit, *orvo, "hidden", seconds);
    DoubleClickTrayIcon();
    HWND window = nullptr;
    if (!Until(kPatienceMs, [&] { return (window = cockpit.FrontWindow()) != nullptr; })) {
        return false;
    }
    const HWND tabs = FindShownChild(window, "SysTabControl32", std::nullopt);
    int tab = 0;
    for (const std::string& caption : TabTexts(tabs)) {
        if (!ClickTab(tabs, tab++)) return false;
        ShowState(cockpit, *orvo, caption, seconds);
    }
    EndOrvo(cockpit);
    return true;
}

}  // namespace bench
