#pragma once

#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "platform/virtual/VirtualPlatform.h"
#include "simlink/devices/cPanelDevice.h"
#include "tests/panels/Happening.h"
#include "toolkit/Form.h"
#include "toolkit/HeadlessUi.h"

using Report = VirtualDevice::Report;
using Reports = std::vector<Report>;

// The device object of one panel, on a machine without program and simulator.
template <class Control, PanelKind kind>
struct DeviceTest : testing::Test {
    VirtualPlatform machine;
    HeadlessUi ui;
    Form form{ui};
    cSetupHolder setup{machine.ini, machine.files, machine.clock, machine.registry, "C:\\Orvo"};
    VirtualDevice& device = machine.bus.Add(
        kPanelVendorId, kPanelIdentities[static_cast<size_t>(kind)].productId, "panel");
    DeviceServices services{machine.clock, machine.loop, machine.hid, machine.deckhub, setup};
    std::string told;  // outlives the panel, whose end may still tell
    std::unique_ptr<Control> panel = std::make_unique<Control>(form, services);

    void PlugIn() { panel->Connect(device.path); }
    // From now on the event is told by this name.
    template <class... Args>
    void Listen(Event<Args...>& event, Happening happening) {
        event.Connect([this, happening](Args... args) { told += happening(args...); });
    }
    // The panel reports a state of its 24 bits, without or with time to handle it.
    void Post(int32_t state) {
        const auto byte = [state](int shift) { return static_cast<uint8_t>(state >> shift); };
        device.SendReport({0, byte(16), byte(8), byte(0)});
    }
    template <class... States>
    void Send(States... states) {
        ((Post(states), machine.loop.RunPending()), ...);
    }
    // Several states that all wait before the first of them is handled.
    void SendAtOnce(const std::vector<int32_t>& states) {
        for (const int32_t state : states) Post(state);
        machine.loop.RunPending();
    }
    void WaitMs(uint32_t milliseconds) { machine.loop.Advance(milliseconds); }
    // What was told, and what was written to the panel, since the last time.
    std::string Heard() { return std::exchange(told, {}); }
    void ExpectHeard(const std::string& all, const char* why = "", Where where = Where::current()) {
        ExpectAt(where, Heard(), all, why);
    }
    Reports Written() { return std::exchange(device.featureReports, {}); }
};
