#pragma once

#include "platform/Clock.h"
#include "platform/Deckhub.h"
#include "platform/FilePort.h"
#include "platform/HidPort.h"
#include "platform/IniService.h"
#include "platform/IpcChannel.h"
#include "platform/KeyboardPort.h"
#include "platform/MessageLoop.h"
#include "platform/ProcessPort.h"
#include "platform/RegistryPort.h"
#include "platform/ScreenPort.h"
#include "platform/TrayPort.h"

// Everything that the program asks of the machine. Whoever needs a port takes that port; only the
// root of the program takes the whole.
struct Platform {
    Clock& clock;
    MessageLoop& loop;
    IpcChannel& ipc;
    HidPort& hid;
    Deckhub& deckhub;
    IniService& ini;
    RegistryPort& registry;
    ProcessPort& process;
    ScreenPort& screen;
    TrayPort& tray;
    FilePort& files;
    KeyboardPort& keyboard;
};
