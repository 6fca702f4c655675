// Panels that take their time for each feature report, and one that never answers.
#include <cmath>
#include <iterator>

#include "bench/figures/Measuring.h"
#include "bench/flight/ScriptedFlight.h"

namespace bench {

namespace {

constexpr int kRounds = 10;
constexpr double kLongestWaitMs = 15000;

void MakeSlow(Cockpit& cockpit, int milliseconds) {
    for (const char* panel : kPanelNames) {
        cockpit.Panels(std::string("slow ") + panel + ' ' + std::to_string(milliseconds));
    }
}

// When the latest report came onto the panel, once none has come for `quietMs`.
double LastReport(Cockpit& cockpit, const std::string& panel, double quietMs) {
    double last = kNone;
    const double began = Now();
    double lookedAt = began;
    do {
        const std::vector<double> times = Numbers(cockpit.Panels("times " + panel));
        if (!times.empty()) {
            last = times.back();
            lookedAt = Now();
        }
        ::Sleep(20);
    } while (Now() - lookedAt < quietMs && Now() - began < kLongestWaitMs);
    return last;
}

// What the radio shows is what the simulator has by now.
bool ShowsLastValue(Cockpit& cockpit) {
    const int digits = std::stoi(cockpit.Simulator("get 0x034E 2"));
    char frequency[16] = "";
    std::snprintf(frequency, sizeof frequency, "1%02X.%02X", digits >> 8, digits & 0xFF);
    return cockpit.Panels("show radio1").find(frequency) != std::string::npos;
}

struct Outcome {
    Ticks ticks;
    std::vector<double> latencies;
    int wrong = 0;
};

// All changes at every tick; then it stops, and the last values are waited for on each panel but
// `except`.
Outcome Measure(Cockpit& cockpit, uint32_t seconds, double reportMs,
                const std::string& except = "") {
    Outcome outcome;
    cockpit.Simulator("vary 1");
    ::Sleep(500);
    cockpit.Simulator("ticks");
    const double began = Now();
    ::Sleep(seconds * 1000);
    outcome.ticks = TicksOf(Numbers(cockpit.Simulator("ticks")), Now() - began);
    for (int round = 0; round < kRounds; ++round) {
        cockpit.Simulator("vary 1");
        // Not always at the same moment of a write.
        ::Sleep(static_cast<DWORD>(500 + round * 7));
        cockpit.Simulator("vary 0");
        const double known = Numbers(cockpit.Simulator("varied")).at(1);
        for (const std::string panel : kPanelNames) {
            if (panel == except) continue;
            const double last = LastReport(cockpit, panel, 200 + 3 * reportMs);
            if (last >= known) outcome.latencies.push_back(last - known);
        }
        if (except != "radio1" && !ShowsLastValue(cockpit)) ++outcome.wrong;
    }
    return outcome;
}

void Show(const std::string& what, const Outcome& outcome) {
    ShowRow(what, {outcome.ticks.perSecond, outcome.ticks.percentile99, Median(outcome.latencies),
                   Quantile(outcome.latencies, 1), static_cast<double>(outcome.wrong)});
}

}  // namespace

bool ShowSlowPanels(Cockpit& cockpit, uint32_t seconds) {
    StartBench(cockpit);
    if (!StartOrvo(cockpit, kFlightTiles)) return false;
    ShowHead("all changes at every tick; a report takes",
             {"ticks/s", "99 %, ms", "last value", "at most, ms", "wrong of 10"});
    for (const int milliseconds : {0, 5, 50, 500}) {
        MakeSlow(cockpit, milliseconds);
        Show(std::to_string(milliseconds) + " ms on each panel",
             Measure(cockpit, seconds, milliseconds));
    }
    MakeSlow(cockpit, 0);
    const double quick = EndOrvo(cockpit);
    if (!StartOrvo(cockpit, kFlightTiles)) return false;
    cockpit.Panels("hang multi1");
    Show("for ever on one, nothing on the others", Measure(cockpit, seconds, 0, "multi1"));
    const double hanging = EndOrvo(cockpit);
    cockpit.Panels("slow multi1 0");
    if (!StartOrvo(cockpit, kFlightTiles)) return false;
    MakeSlow(cockpit, 50);
    cockpit.Simulator("vary 1");
    ::Sleep(1000);
    const double slow = EndOrvo(cockpit);
    ShowHead("the end takes, ms", {"no wait", "50 ms", "one hangs"});
    ShowRow("Orvo.exe", {quick, slow, hanging});
    return true;
}

}  // namespace bench
