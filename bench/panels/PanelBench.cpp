// The virtual panels: keeps their device files and takes orders on its console. The argument names
// the folder in which Orvo.exe and the bench DLLs lie, else the present one.

#include "bench/console/LineServer.h"
#include "bench/panels/PanelConsole.h"
#include "bench/panels/PipeBus.h"

using namespace bench;

int main(int argc, char** argv) {
    PipeBus bus(argc > 1 ? argv[1] : ".");
    PanelConsole console(bus);
    ServeLines([&console](const Command& command) { return console.Answer(command); });
    return 0;
}
