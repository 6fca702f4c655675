// The simulator stand-in: serves the FSUIPC channel in a process of its own and takes orders on its
// console. An argument names the window class to serve under, else "UIPCMAIN".

#include <windows.h>

#include <cstdio>
#include <mutex>
#include <thread>

#include "bench/console/LineServer.h"
#include "bench/sim/ServerWindow.h"
#include "bench/sim/SimConsole.h"

using namespace bench;

int main(int argc, char** argv) {
    SimState state;
    std::mutex lock;
    ServerWindow window(state, lock, argc > 1 ? argv[1] : "UIPCMAIN");
    std::thread orders([&] {
        window.WaitUntilUp();
        std::unique_lock hold(lock);
        // The window's thread needs the lock while it serves, so an order for it goes without.
        SimConsole console(state, [&](bool visible) {
            hold.unlock();
            const bool done = window.Show(visible);
            hold.lock();
            return done;
        });
        hold.unlock();
        ServeLines([&](const Command& command) {
            hold.lock();
            state.Aircraft().MoveTo(GetTickCount());
            std::string answer = console.Answer(command);
            hold.unlock();
            window.EndSilence();
            return answer;
        });
        window.Stop();
    });
    if (!window.Run()) {
        std::puts("error: the server window can't be made");
        std::fflush(stdout);
        ExitProcess(1);
    }
    orders.join();
    return 0;
}
