// Measures Orvo.exe from outside: Figures ORVO.EXE FOLDER [GROUP [SECONDS]]. FOLDER is emptied for
// each group and used as the program's folder.

#include <cstdio>
#include <cstdlib>
#include <string>

#include "bench/figures/Measuring.h"

using namespace bench;

namespace {

constexpr struct {
    const char* name;
    bool (*show)(Cockpit& cockpit, uint32_t seconds);
    uint32_t seconds;  // of a measurement, unless others are asked for
    const char* what;
} kGroups[] = {
    {"start", ShowStarts, 0, "programs start, show their icon and end"},
    {"windows", ShowResources, 0, "windows give back all that they take"},
    {"pace", ShowPaces, 0, "ticks are seen in each state"},
    {"cpu", ShowCpu, 60, "what a quiet flight costs beside bare clients"},
    {"calls", ShowSystemCalls, 5, "system calls of a tick are counted"},
    {"shown", ShowWindowCosts, 10, "what the window costs"},
    {"slow", ShowSlowPanels, 10, "slow panels hold nothing up"},
    {"flood", ShowFloods, 30, "a flood of reports leaves the tick its time"},
    {"long", ShowLongRun, 60, "memory stands still"},
};

}  // namespace

int main(int argc, char** argv) {
    if (argc < 3) {
        std::puts("Figures ORVO.EXE FOLDER [GROUP [SECONDS]]");
        return 2;
    }
    SetProcessDPIAware();
    const std::string wanted = argc > 3 ? argv[3] : "";
    const auto seconds = argc > 4 ? static_cast<uint32_t>(std::strtoul(argv[4], nullptr, 10)) : 0;
    bool well = true;
    bool any = false;
    for (const auto& group : kGroups) {
        if (!wanted.empty() && wanted != group.name) continue;
        any = true;
        Cockpit cockpit(argv[1], argv[2]);
        well = Check("the cockpit is set up", cockpit.IsReady()) &&
               Check(group.what, group.show(cockpit, seconds != 0 ? seconds : group.seconds)) &&
               well;
    }
    return well && Check("there is such a group", any) ? 0 : 1;
}
