#pragma once

#include <cstdint>
#include <initializer_list>
#include <optional>
#include <string>
#include <vector>

#include "bench/driver/Cockpit.h"
#include "bench/figures/LinuxProcess.h"
#include "bench/figures/Resources.h"

namespace bench {

// What the groups of figures share. Times are in milliseconds by QueryPerformanceCounter, as those
// of the bench programs' consoles.

inline constexpr uint32_t kPatienceMs = 20000;
// Where a figure is asked for that there isn't.
extern const double kNone;

double Now();
std::string OwnFolder();

// A head, or a row of figures under it.
void ShowHead(const char* what, std::initializer_list<const char*> columns);
void ShowRow(const std::string& what, std::initializer_list<double> figures);
// Gives whether handles, windows and GDI objects are the same, and there at all.
bool ShowCounts(const Resources& first, const Resources& second);
double Mebi(uint64_t bytes);
// Says so when it isn't well, and gives back whether it is.
bool Check(const char* what, bool well);

// The blank-parted numbers of an answer; of "MS:REPORT" the first one.
std::vector<double> Numbers(const std::string& answer);
// kNone of nothing.
double Quantile(std::vector<double> values, double share);
inline double Median(std::vector<double> values) { return Quantile(std::move(values), 0.5); }

struct Ticks {
    double perSecond = 0;
    double median = kNone;
    double percentile99 = kNone;
};
// Of the times of ticks; `milliseconds` is how long they were waited for.
Ticks TicksOf(const std::vector<double>& times, double milliseconds);

// What a program took and did while a time went by.
struct Spent {
    double cpuMsPerSecond = kNone;
    Ticks ticks;
};
Spent Spend(Cockpit& cockpit, const LinuxProcess& process, uint32_t seconds);

// Starts Orvo among what else is up, with this profile, without waiting for windows of its own.
// Nothing when it doesn't connect, or without a simulator doesn't run.
std::optional<LinuxProcess> StartOrvo(Cockpit& cockpit, const std::string& profile,
                                      bool simulator = true);
// Asks it to end as the system does at its close box; gives how long that took, kNone and a kill
// when it doesn't end in time.
double EndOrvo(Cockpit& cockpit);

// Closes a program's windows that have a caption.
void CloseWindowsOf(const Process& process);

// Simulator and one panel of each kind, as kPanelNames.
void StartBench(Cockpit& cockpit);
inline constexpr const char* kPanelNames[] = {"multi1", "radio1", "switch1", "bip1"};

// Groups of figures. They give false when something can't be measured; `seconds` is how long each
// measurement takes.
bool ShowStarts(Cockpit& cockpit, uint32_t seconds);
bool ShowResources(Cockpit& cockpit, uint32_t seconds);
bool ShowPaces(Cockpit& cockpit, uint32_t seconds);
bool ShowCpu(Cockpit& cockpit, uint32_t seconds);
bool ShowSystemCalls(Cockpit& cockpit, uint32_t seconds);
bool ShowWindowCosts(Cockpit& cockpit, uint32_t seconds);
bool ShowSlowPanels(Cockpit& cockpit, uint32_t seconds);
bool ShowFloods(Cockpit& cockpit, uint32_t seconds);
bool ShowLongRun(Cockpit& cockpit, uint32_t seconds);

}  // namespace bench
