// Flies Orvo.exe from outside: Flight ORVO.EXE FOLDER [--shots|--stay]. FOLDER is emptied and used
// as the program's folder. With --shots a script answers the "@shot" lines; with --stay all is
// started and left to the user, whose lines go to the bench: "sim COMMAND", "panel COMMAND", "end".

#include <windows.h>

#include <iostream>
#include <string>
#include <string_view>

#include "bench/flight/ScriptedFlight.h"

using namespace bench;

namespace {

constexpr char kHelp[] =
    "Orvo is up; a double click on its icon in the task bar opens the window.\n"
    "Type 'panel knob multi1 +1', 'panel selector multi1 HDG', 'panel show multi1',\n"
    "'panel upper-inner radio1 +1', 'panel press radio1 upper', 'panel show radio1',\n"
    "'panel bat switch1 on', 'panel gear switch1 up', 'panel show switch1',\n"
    "'panel show bip1', 'sim set 0x3366 1 1', 'sim get 0x07CC 2', 'sim title NAME'\n"
    "and the like; 'end' or Ctrl-C ends it all.";

bool Stay(Cockpit& cockpit, const FlightLog& log) {
    cockpit.WriteFile("Default.ini", kFlightTiles);
    cockpit.StartSimulator();
    cockpit.StartPanels();
    for (const char* kind : {"radio", "multi", "switch", "bip"}) {
        cockpit.Panels(std::string("add ") + kind);
    }
    cockpit.Simulator("batches");
    cockpit.StartOrvo();
    log.Say(kHelp);
    for (std::string line; std::getline(std::cin, line) && line != "end";) {
        if (line.starts_with("sim ")) {
            log.Say(cockpit.Simulator(line.substr(4)));
        } else if (line.starts_with("panel ")) {
            log.Say(cockpit.Panels(line.substr(6)));
        } else if (!line.empty()) {
            log.Say("error: sim COMMAND, panel COMMAND or end");
        }
    }
    return !cockpit.Orvo().IsRunning() || cockpit.QuitByUser();
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 3) {
        std::cout << "Flight ORVO.EXE FOLDER [--shots|--stay]" << std::endl;
        return 2;
    }
    SetProcessDPIAware();  // its pixels are then those of Orvo's windows
    const std::string_view mode = argc > 3 ? argv[3] : "";
    const FlightLog log(mode == "--shots");
    Cockpit cockpit(argv[1], argv[2]);
    if (!log.Check("the cockpit is set up", cockpit.IsReady(),
                   std::string("the files can't be copied to ") + argv[2])) {
        return 1;
    }
    if (mode == "--stay") return Stay(cockpit, log) ? 0 : 1;
    return FlyScriptedFlight(cockpit, log) ? 0 : 1;
}
