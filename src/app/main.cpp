// Orvo.exe: the program on the real machine.
#include <windows.h>

#include "core/modMain.h"
#include "platform/win32/Win32Loop.h"
#include "platform/win32/Win32Platform.h"
#include "toolkit/win32/Win32Ui.h"

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int) {
    Win32Platform machine;
    Win32Ui ui;
    machine.Loop().TakesMessage = [&ui](void* message) { return ui.TakeKey(message); };
    ui.BeforeBox = [&machine] { machine.Loop().GiveToSystem(); };
    const Platform ports = machine.Ports();
    modMain program(ports, ui);
    if (program.Main()) ports.loop.Run();
    return 0;
}
