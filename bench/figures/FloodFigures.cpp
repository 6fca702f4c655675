// Each of four panels sends far more input reports than a hand can make.
#include <algorithm>
#include <cmath>

#include "bench/driver/Until.h"
#include "bench/figures/Measuring.h"

namespace bench {

namespace {

constexpr int kPerSecond = 500;
constexpr double kLongestReturnMs = 90000;
constexpr double kRhythmMs = 30;     // a longer interval is none
constexpr size_t kRhythmTicks = 20;  // so many in a row are one

// Steps of the trim wheel and the knob are always single ones, so that they can be counted; one
// trims so little that 30 s don't reach the end.
constexpr char kCountable[] =
    "[MultiPanel1]\r\nTrimAcceleration=0\r\nTrimSensitivity=1\r\n"
    "[RadioPanel1]\r\nRotAccelerationCOM1=-17\r\n";
constexpr int kTrimStart = -16383;
constexpr int kTrimStep = 8;
constexpr int kChannels = 760;  // 118.000 to 136.975 MHz

int Signed(const std::string& word) { return static_cast<int16_t>(std::stoi(word)); }

// Steps of 25 kHz from 118.00 up, by the four digits of the simulator.
int ChannelOf(int digits) {
    const int hundredths =
        (digits >> 12) * 1000 + (digits >> 8 & 15) * 100 + (digits >> 4 & 15) * 10 + (digits & 15);
    return (hundredths - 1800) * 2 / 5 + ((hundredths - 1800) * 2 % 5 != 0 ? 1 : 0);
}

struct Steps {
    int trim;
    int channel;
    int switchWrites;
};

Steps StepsOf(Cockpit& cockpit) {
    return {(Signed(cockpit.Simulator("get 0x0BC0 2")) - kTrimStart) / kTrimStep,
            ChannelOf(std::stoi(cockpit.Simulator("get 0x311A 2"))),
            std::stoi(cockpit.Simulator("written 0x0D0C"))};
}

// The first tick from which on they come in their rhythm.
double RhythmFrom(const std::vector<double>& ticks) {
    size_t inRow = 0;
    for (size_t i = 1; i < ticks.size(); ++i) {
        inRow = ticks[i] - ticks[i - 1] < kRhythmMs ? inRow + 1 : 0;
        if (inRow == kRhythmTicks) return ticks[i - kRhythmTicks];
    }
    return kNone;
}

// Time from the end of the flood to the first tick of the rhythm.
double AwaitRhythm(Cockpit& cockpit, double end) {
    std::vector<double> ticks;
    double from = kNone;
    while (std::isnan(from) && Now() - end < kLongestReturnMs) {
        ::Sleep(300);
        for (const double tick : Numbers(cockpit.Simulator("ticks"))) {
            if (tick >= end) ticks.push_back(tick);
        }
        from = RhythmFrom(ticks);
    }
    return from - end;
}

struct Outcome {
    Ticks ticks;
    double back = kNone;
    double memory = 0;
    double peak = 0;
};

Outcome Flood(Cockpit& cockpit, const LinuxProcess& orvo, uint32_t seconds,
              std::initializer_list<std::pair<const char*, const char*>> floods) {
    Outcome outcome;
    outcome.memory = Mebi(orvo.AnonymousBytes());
    cockpit.Simulator("ticks");
    const double began = Now();
    for (const auto& [panel, what] : floods) {
        cockpit.Panels(std::string("flood ") + panel + ' ' + std::to_string(kPerSecond) + ' ' +
                       std::to_string(seconds) + ' ' + what);
    }
    const auto look = [&] { outcome.peak = std::max(outcome.peak, Mebi(orvo.AnonymousBytes())); };
    while (cockpit.Panels("flooding") != "none") {
        look();
        ::Sleep(100);
    }
    const double end = std::max(Now() - 100, began + seconds * 1000);
    look();
    std::vector<double> ticks = Numbers(cockpit.Simulator("ticks"));
    outcome.ticks = TicksOf(ticks, Now() - began);
    outcome.back = std::max(AwaitRhythm(cockpit, end), 0.0);
    look();
    return outcome;
}

void Show(const char* what, const Outcome& outcome) {
    ShowRow(what, {outcome.ticks.perSecond, outcome.ticks.percentile99, outcome.back,
                   outcome.memory, outcome.peak});
}

// Waits until no more comes, and shows what has come of it.
void ShowSteps(Cockpit& cockpit, const Steps& before) {
    const int reports = std::stoi(cockpit.Panels("flooded multi1"));
    const int steps = reports / 4;
    Steps after = StepsOf(cockpit);
    Until(kPatienceMs, [&] {
        after = StepsOf(cockpit);
        return after.trim == steps;
    });
    const auto refused = [&](const char* panel) {
        const std::string answer = cockpit.Panels(std::string("flooded ") + panel);
        return Numbers(answer.substr(answer.find(',') + 1)).at(0);
    };
    const int channels = (after.channel - before.channel + kChannels) % kChannels;
    ShowHead("steps to the simulator", {"sent", "came", "lost", "refused"});
    const auto show = [&](const char* what, int sent, int came, const char* panel) {
        ShowRow(what, {double(sent), double(came), double(sent - came), refused(panel)});
    };
    show("trim wheel of the Multi Panel", steps, after.trim, "multi1");
    show("knob of the Radio Panel, of the rest by 760", steps % kChannels, channels, "radio1");
    show("switch of the Switch Panel", reports, after.switchWrites - before.switchWrites,
         "switch1");
}

}  // namespace

bool ShowFloods(Cockpit& cockpit, uint32_t seconds) {
    StartBench(cockpit);
    const auto orvo = StartOrvo(cockpit, kCountable);
    if (!orvo) return false;
    cockpit.Simulator("set 0x0BC0 2 " + std::to_string(kTrimStart));
    ::Sleep(500);
    const Steps before = StepsOf(cockpit);
    ShowHead("500 reports a second from each of 4 panels",
             {"ticks/s", "99 %, ms", "back, ms", "memory, MiB", "peak, MiB"});
    // The BIP Panel has no controls; what it sends says nothing.
    Show("steps of wheel and knob, a switch", Flood(cockpit, *orvo, seconds,
                                                    {{"multi1", "trim"},
                                                     {"radio1", "upper-inner"},
                                                     {"switch1", "landing"},
                                                     {"bip1", "random"}}));
    ShowSteps(cockpit, before);
    const Outcome random = Flood(
        cockpit, *orvo, seconds,
        {{"multi1", "random"}, {"radio1", "random"}, {"switch1", "random"}, {"bip1", "random"}});
    ShowHead("", {"ticks/s", "99 %, ms", "back, ms", "memory, MiB", "peak, MiB"});
    Show("random bytes", random);
    EndOrvo(cockpit);
    return true;
}

}  // namespace bench
