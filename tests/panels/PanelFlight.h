#pragma once

#include <cstring>
#include <gtest/gtest.h>
#include <string>
#include <type_traits>
#include <utility>

#include "base/Bytes.h"
#include "bench/virtual/VirtualCockpit.h"
#include "tests/panels/Happening.h"

// What goes out of a panel's logic. Virtual buttons are those of the first joystick.
inline constexpr Happening SentControl{"SentControl"};  // number and parameter
inline constexpr Happening Pressed{"Pressed"}, Released{"Released"};
inline std::string Clicked(int number) { return Pressed(number) + Released(number); }
inline constexpr Happening ButtonsWrittenAsTheyWere{"ButtonsWrittenAsTheyWere"};
inline constexpr Happening Typed{"Typed"};  // virtual key code

// Writes, by the number of their bytes: offset and value.
inline constexpr Happening WroteByte{"WroteByte"}, WroteDword{"WroteDword"};
inline constexpr Happening WroteDouble{"WroteDouble"};
inline std::string WroteWord(uint32_t offset, int value) {
    return Happening{"WroteWord"}(offset, static_cast<uint16_t>(value));
}

inline constexpr Happening Waited{"Waited"};  // milliseconds

inline constexpr uint32_t kBatteryMaster = 0x281C, kAvionicsMaster = 0x2E80;
inline constexpr int32_t kLeftClick = 0x20000000;  // parameter of an add-on's control

// A session with panels that a test moves, and what goes out of their logics.
struct PanelFlight : testing::Test, VirtualCockpit {
    OffsetServer& sim = machine.server;
    std::string told;

    // Goes on with this profile, and begins a session if there is none.
    void FlyWith(const std::string& profile) {
        PutProfile("Default", profile);
        if (!program) Start();
        Connect();
        Window().cmbProfiles.SetListIndex(0);
        Tick();
        Tick();
        machine.keyboard.typed.clear();
        told.clear();
    }
    // The simulator goes away, and a new session begins.
    void Reconnect() {
        LoseSimulator();
        Connect();
    }
    // The simulator has this value at the offset.
    template <class T = uint16_t>
    void Simulator(uint32_t offset, std::type_identity_t<T> value) {
        sim.Set<T>(offset, value);
    }
    // Tells so, behind what has gone out until then.
    void WaitMs(uint32_t milliseconds) {
        machine.loop.Advance(milliseconds);
        TellPiledUp();
        told += Waited(milliseconds);
    }
    // What has gone out by the next tick.
    std::string Sent() {
        Tick();
        TellPiledUp();
        return std::exchange(told, {});
    }
    // The rows of the panel.
    virtual std::string Shown() { return VirtualCockpit::Shown(); }

    // This has gone out by the next tick, no more and no less.
    void ExpectSent(const std::string& sent, const char* why = "", Where where = Where::current()) {
        ExpectAt(where, Sent(), sent, why);
    }
    // And the rows show this then.
    void Expect(const std::string& sent, const std::string& shown, Where where = Where::current()) {
        ExpectAt(where, Sent(), sent);
        ExpectAt(where, Shown(), shown);
    }
    void ExpectShown(const std::string& shown, Where where = Where::current()) {
        Expect(kNothing, shown, where);
    }

  protected:
    // Tells what doesn't raise an event when it goes out: it comes behind what does.
    virtual void TellPiledUp() {
        for (const auto& stroke : std::exchange(machine.keyboard.typed, {}))
            told += Typed(stroke[0].wVk);
    }

  private:
    void Tell(uint32_t offset, std::span<const uint8_t> bytes) {
        const uint8_t* data = bytes.data();
        const auto dword = [data](size_t at) { return static_cast<int32_t>(LoadLE32(data + at)); };
        if (offset == 0x330A) return;  // the client's version
        if (offset == 0x3110) {
            told += SentControl(dword(0), dword(4));
        } else if (offset == 0x3340) {
            TellButtons(sim.Get<uint32_t>(offset), LoadLE32(data));
        } else if (bytes.size() == 8) {
            double value = 0;
            std::memcpy(&value, data, sizeof value);
            told += WroteDouble(offset, value);
        } else {
            told += bytes.size() == 1   ? WroteByte(offset, data[0])
                    : bytes.size() == 2 ? WroteWord(offset, LoadLE16(data))
                                        : WroteDword(offset, dword(0));
        }
    }
    void TellButtons(uint32_t before, uint32_t after) {
        if (before == after) told += ButtonsWrittenAsTheyWere();
        for (int number = 1; number <= 32; ++number) {
            const uint32_t bit = 1U << (number - 1);
            if ((before ^ after) & bit) told += (after & bit ? Pressed : Released)(number);
        }
    }

    ScopedConnection writing_ = sim.Writing.Connect(
        [this](uint32_t offset, std::span<const uint8_t> bytes) { Tell(offset, bytes); });
};
