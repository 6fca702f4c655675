#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <vector>

#include "base/Call.h"
#include "base/Event.h"
#include "config/cSetupHolder.h"
#include "platform/Clock.h"
#include "platform/Deckhub.h"
#include "platform/HidPort.h"
#include "platform/MessageLoop.h"
#include "platform/Timer.h"
#include "simlink/devices/PanelIdentity.h"
#include "toolkit/CommandButton.h"
#include "toolkit/Picture.h"

// What the device objects work with.
struct DeviceServices {
    Clock& clock;
    MessageLoop& loop;
    HidPort& hid;
    Deckhub& deckhub;
    const cSetupHolder& generalSetup;
};

// What the device objects of all panels have in common: the link that brings the panel's reports,
// the device file that takes its lights and displays, and the picture on the main window's page. It
// knows bytes and nothing of the simulator.
class cPanelDevice : public Picture {
  public:
    cPanelDevice(Container& parent, const DeviceServices& services, PanelKind kind);
    ~cPanelDevice() override;

    // Starts the link, then opens the device. Always true: a panel that can't be opened shows
    // nothing and brings no reports.
    bool Connect(const std::string& DevicePathName);

    // The start-up show. Lets pending messages run.
    virtual void Splash() = 0;
    // Reports the positions of the selectors as if they had just been moved.
    void GetPositions();
    // Darkens displays and lights.
    virtual void TurnOff() = 0;

    // Turns the output off, stops the link and closes the device; only the first call does
    // anything, and what is written later goes nowhere. Lets pending messages run, so a final class
    // calls it in its destructor, while it is whole.
    void End();

    Event<uint8_t, uint8_t, uint8_t, uint8_t> RawInput;  // every report, before anything else
    Event<> SetupRequest;                                // cmdSetup was pressed

    CommandButton cmdSetup{this};

    Event<> ReportSent;  // to the panel, which may have refused it

  protected:
    // What a report has brought: the 24 bits of the panel's state before and after it.
    struct Change {
        int32_t before;
        int32_t after;
        bool first;  // nothing was reported before
        bool Touches(int32_t mask) const { return ((before ^ after) & mask) != 0; }
    };

    // A report has come, at this clock: notes and shows what it has brought, and tells it.
    virtual void HandleReport(const Change& /*change*/, uint32_t /*clock*/) {}
    // Does so with the positions that the device gives when it is asked.
    virtual void ReadPositions() {}
    // Raises an event of the panel as soon as those before it are done. A listener may let messages
    // run: what reports bring among them waits, so that all is told in the order in which it
    // happened, and once.
    template <class... Args, class... Values>
    void Tell(Event<Args...>& event, Values... values) {
        Then([&event, values...] { event.Raise(values...); });
    }
    template <class Function>
    void Then(Function act) {
        acts_.emplace_back(act);
    }
    // Does what waits, unless it is being done.
    void TellWaiting();
    // The device has just been opened.
    virtual void Connected() {}

    uintptr_t DeviceHandle() const { return deviceHandle_; }
    // State word of the last report.
    int32_t LastState() const { return lastState_; }
    const DeviceServices& Services() const { return services_; }

    static int32_t StateWord(uint8_t byte1, uint8_t byte2, uint8_t byte3) {
        return (byte1 << 16) | (byte2 << 8) | byte3;
    }

    // The picture can't be stretched.
    void Resized() override;

  private:
    void Disconnect();
    void ForgetActs();
    void TakeReport(uint8_t byte0, uint8_t byte1, uint8_t byte2, uint8_t byte3);

    // The panel's device file, which tells what goes there.
    struct Outputs final : HidPort {
        Outputs(HidPort& hid, Event<>& event) : port(hid), sent(event) {}

        uintptr_t Open(const std::string& path) override { return port.Open(path); }
        bool SetFeature(uintptr_t handle, std::span<const uint8_t> report) override {
            const bool taken = port.SetFeature(handle, report);
            sent.Raise();
            return taken;
        }
        bool GetFeature(uintptr_t handle, std::span<uint8_t> report) override {
            return port.GetFeature(handle, report);
        }
        void Close(uintptr_t handle) override { port.Close(handle); }

        HidPort& port;
        Event<>& sent;
    };

    Outputs outputs_;
    const DeviceServices services_;
    const PanelKind kind_;
    std::unique_ptr<PanelLink> link_;
    uintptr_t deviceHandle_ = 0;
    std::vector<Call> acts_;  // what reports have brought
    size_t told_ = 0;         // of these; when it is all of them, both are empty again
    bool telling_ = false;
    uint32_t tellingSince_ = 0;
    Timer timerWaiting_;  // runs only while something waits behind a listener
    int32_t lastState_ = 0;
    bool firstReportPending_ = true;
    bool ended_ = false;
};
