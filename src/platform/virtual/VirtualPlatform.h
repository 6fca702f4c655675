#pragma once

#include "platform/Platform.h"
#include "platform/virtual/OffsetServer.h"
#include "platform/virtual/VirtualBus.h"
#include "platform/virtual/VirtualClock.h"
#include "platform/virtual/VirtualDeckhub.h"
#include "platform/virtual/VirtualFiles.h"
#include "platform/virtual/VirtualHid.h"
#include "platform/virtual/VirtualIni.h"
#include "platform/virtual/VirtualIpc.h"
#include "platform/virtual/VirtualKeyboard.h"
#include "platform/virtual/VirtualLoop.h"
#include "platform/virtual/VirtualProcess.h"
#include "platform/virtual/VirtualRegistry.h"
#include "platform/virtual/VirtualScreen.h"
#include "platform/virtual/VirtualTray.h"

// A whole machine in memory.
struct VirtualPlatform {
    VirtualClock clock;
    VirtualLoop loop{clock};
    OffsetServer server;
    VirtualIpc ipc{clock, server};
    VirtualBus bus;
    VirtualHid hid{bus};
    VirtualDeckhub deckhub{bus, clock, loop};
    VirtualFiles files;
    VirtualIni ini{files};
    VirtualRegistry registry;
    VirtualProcess process;
    VirtualScreen screen;
    VirtualTray tray;
    VirtualKeyboard keyboard;

    Platform Ports() {
        return {clock,    loop,    ipc,    hid,  deckhub, ini,
                registry, process, screen, tray, files,   keyboard};
    }
};
