// Flies for a long time on the virtual clock, with everything that users, panels, simulator and
// other programs may do: Soak [MINUTES [SEED]].
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <random>
#include <string>

#include "base/Number.h"
#include "bench/soak/SoakFlight.h"
#include "bench/virtual/RandomProfile.h"

namespace {

constexpr uint64_t kTicksOfMinute = 6000;
constexpr uint64_t kLongestRun = 10 * kTicksOfMinute;

VirtualFiles FirstFiles(Choices& choices) {
    VirtualFiles files;
    files.Put("C:\\Orvo\\Orvo.ini",
              "[GeneralSetup]\r\nSplash=0\r\nManualProfile=1\r\n[Mine]\r\nKept=1\r\n"
              "[Profiles]\r\nAirbus= \r\nMaddog= \r\nBoeing= \r\n"
              "[Aircrafts]\r\nBaron 58=Default\r\nMaule Orion=Maddog\r\n"
              "B737-800 %C4%D6=Boeing\r\n");
    constexpr struct {
        const char* name;
        uint8_t mode;
    } kProfiles[] = {{"Default", 0}, {"Airbus", 0}, {"Maddog", 1}, {"Boeing", 2}};
    for (const auto& profile : kProfiles) {
        files.Put(std::string("C:\\Orvo\\") + profile.name + ".ini",
                  RandomProfile(choices, profile.mode, 2));
    }
    return files;
}

void Print(const SoakTally& tally, double seconds) {
    const auto number = [](uint64_t value) { return std::to_string(value); };
    std::printf("%s\n", (number(tally.ticks) + " ticks, " + number(tally.starts) + " starts, " +
                         number(tally.sessions) + " sessions, " + number(tally.aircraft) +
                         " aircraft, " + number(tally.windows) + " windows, " +
                         number(tally.boxes) + " boxes, " + number(tally.reports) +
                         " reports from panels, " + number(tally.shown) + " to them, " +
                         number(tally.changes) + " changes of files, " + number(tally.rests) +
                         " rests: no fault, " + number(static_cast<uint64_t>(seconds)) + " s")
                            .c_str());
}

}  // namespace

int main(int count, char** arguments) {
    const auto argument = [&](int place) {
        return count > place ? ParseInteger<uint32_t>(arguments[place]) : std::nullopt;
    };
    const uint64_t ticks = argument(1).value_or(60) * kTicksOfMinute;
    const uint32_t seed = argument(2).value_or(std::random_device()());
    std::printf("seed %u\n", seed);
    std::fflush(stdout);
    const auto begin = std::chrono::steady_clock::now();
    SeededChoices choices(seed);
    VirtualFiles files = FirstFiles(choices);
    SoakTally tally;
    while (tally.ticks < ticks) {
        SoakFlight flight(files, choices, tally);
        flight.Fly(std::min(kLongestRun, ticks - tally.ticks));
        files = flight.Files();
    }
    Print(tally, std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count());
    return 0;
}
