#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "bench/virtual/ButtonsWatch.h"
#include "bench/virtual/FilesWatch.h"
#include "bench/virtual/OffsetsWatch.h"
#include "bench/virtual/RandomPilot.h"

// What a soak has gone through so far.
struct SoakTally {
    uint64_t ticks = 0;
    uint64_t starts = 0;
    uint64_t rests = 0;
    uint64_t sessions = 0;
    uint64_t aircraft = 0;
    uint64_t windows = 0;
    uint64_t boxes = 0;
    uint64_t reports = 0;  // that panels sent
    uint64_t shown = 0;    // that panels got
    uint64_t changes = 0;  // of files
};

// One run of the program, from its start to its end, with two panels of each kind. A random pilot
// flies it, and at each tick all is looked at. What is wrong ends the process, with a word about
// it.
class SoakFlight {
  public:
    // `files` are those that the program finds.
    SoakFlight(const VirtualFiles& files, Choices& choices, SoakTally& tally);

    // Until the program has ended, `ticks` later at the latest.
    void Fly(uint64_t ticks);
    // As the program has left them.
    const VirtualFiles& Files() const { return cockpit_.machine.files; }

  private:
    void CheckTick();
    void CheckAtRest();
    void CheckResources();
    void End();
    bool HasEnded() { return cockpit_.Window().IsUnloaded(); }
    void ForgetLogs();
    [[noreturn]] void Fault(const std::string& what) const;
    void NoFault(const std::string& what) const {
        if (!what.empty()) Fault(what);
    }

    Choices& choices_;
    SoakTally& tally_;
    VirtualCockpit cockpit_;
    RandomPilot pilot_;
    std::vector<RandomPilot::Panel*> panels_;
    // Once the program has started.
    std::optional<FilesWatch> files_;
    std::optional<ButtonsWatch> buttons_;
    std::optional<OffsetsWatch> offsets_;
    std::deque<ScopedConnection> counting_;
    int changesBefore_ = 0;
    size_t memoryAtRest_ = 0;
};
