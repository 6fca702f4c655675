// Flies Orvo.exe from outside: Flight ORVO.EXE FOLDER [--shots|--stay]. FOLDER is emptied and used
// as the program's folder. With --shots a script answers the "@shot" lines; with --stay all is
// started and left to the user, whose lines go to the bench: "sim COMMAND", "panel COMMAND", "end".

#include <iostream>
#include <string_view>

#include "bench/flight/ScriptedFlight.h"

namespace {

bool Stay(Cockpit& cockpit, const FlightLog& log) {
    cockpit.StartSimulator();
    cockpit.StartPanels();
    cockpit.Panels("add multi");
    cockpit.Simulator("batches");
    cockpit.StartOrvo();
    log.Say("Orvo is up; a double click on its icon in the task bar opens the window.");
    log.Say("Type 'panel knob multi1 +1', 'panel selector multi1 HDG', 'panel show multi1',");
    log.Say("'sim get 0x07CC 2', 'sim title NAME' and the like; 'end' or Ctrl-C ends it all.");
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
    const std::string_view mode = argc > 3 ? argv[3] : "";
    const FlightLog log(mode == "--shots");
    Cockpit cockpit(argv[1], argv[2]);
    if (!log.Check("the cockpit is set up", cockpit.IsReady(),
                   std::string("the files can't be copied to ") + argv[2])) {
        return 1;
    }
    if (mode == "--stay") return Stay(cockpit, log) ? 0 : 1;
    return ScriptedFlight(cockpit, log).Fly() ? 0 : 1;
}
