#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "base/Event.h"

// Lists the panels on the bus.
class PanelEnumerator {
  public:
    virtual ~PanelEnumerator() = default;

    // Makes the list of panels of one kind, in the order of their paths, and gives its length.
    virtual int16_t CountPanels(int32_t vendorId, int32_t productId) = 0;

    // Device path of a panel of the list that CountPanels made last; `index` counts from 1. Empty
    // for any other index.
    virtual std::string GetPanelPath(int16_t index) = 0;
};

// Reads the input reports of one panel. The fields are set before StartReading, which takes them
// as they are then.
class PanelLink {
  public:
    virtual ~PanelLink() = default;

    // Opens the device and delivers RawInput from here on. A device that can't be opened, and one
    // that goes away later, delivers nothing and makes no noise.
    virtual void StartReading() = 0;

    // No RawInput comes after this; reports not yet taken are dropped. Returns when the reader has
    // ended. Without a StartReading before it does nothing.
    virtual void StopReading() = 0;

    std::string DeviceAddress;
    int32_t ReadWait = 0;   // milliseconds that one read waits before it looks whether to stop
    int32_t Priority = 0;   // priority class as in the general options; 0 leaves the reader's own
    int32_t Affinity = -1;  // processor mask; -1 leaves the choice to the system

    // One input report, raised on the message loop's thread: Byte0 (report id), Byte1 to Byte3.
    Event<uint8_t, uint8_t, uint8_t, uint8_t> RawInput;
    // The clock (GetTickCount) at which the report of the present RawInput came from the device,
    // however long the loop was busy since.
    uint32_t ReportClock = 0;
};

// Makes the enumerators and the links of this machine.
class Deckhub {
  public:
    virtual ~Deckhub() = default;

    // Gives nothing when the system's device lists can't be had.
    virtual std::unique_ptr<PanelEnumerator> CreateEnumerator() = 0;
    virtual std::unique_ptr<PanelLink> CreateLink() = 0;
};
