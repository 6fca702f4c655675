#include "platform/win32/Win32Platform.h"

#include "platform/win32/Win32Clock.h"
#include "platform/win32/Win32Deckhub.h"
#include "platform/win32/Win32Files.h"
#include "platform/win32/Win32Hid.h"
#include "platform/win32/Win32HidLibrary.h"
#include "platform/win32/Win32Ini.h"
#include "platform/win32/Win32Ipc.h"
#include "platform/win32/Win32Keyboard.h"
#include "platform/win32/Win32Loop.h"
#include "platform/win32/Win32Process.h"
#include "platform/win32/Win32Registry.h"
#include "platform/win32/Win32Screen.h"
#include "platform/win32/Win32Tray.h"

struct Win32Platform::Parts {
    std::shared_ptr<const Win32HidLibrary> hidLibrary = std::make_shared<Win32HidLibrary>();
    Win32Clock clock;
    Win32Loop loop;
    Win32Ipc ipc;
    Win32Hid hid{hidLibrary};
    Win32Deckhub deckhub{loop, hidLibrary};
    Win32Ini ini;
    Win32Registry registry;
    Win32Process process;
    Win32Screen screen;
    Win32Tray tray;
    Win32Files files;
    Win32Keyboard keyboard;
};

Win32Platform::Win32Platform() : parts_(std::make_unique<Parts>()) {}

Win32Platform::~Win32Platform() = default;

Platform Win32Platform::Ports() {
    Parts& p = *parts_;
    return {p.clock,    p.loop,    p.ipc,    p.hid,  p.deckhub, p.ini,
            p.registry, p.process, p.screen, p.tray, p.files,   p.keyboard};
}

Win32Loop& Win32Platform::Loop() { return parts_->loop; }
