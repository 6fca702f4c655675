#pragma once

#include <cstdlib>

#include "tests/panels/PanelFlight.h"

// What the simulator has for the panel.
inline constexpr uint32_t kHeading = 0x07CC;   // 65536 is a full circle
inline constexpr uint32_t kAltitude = 0x07D4;  // metres x 65536
inline constexpr uint32_t kVerticalSpeed = 0x07F2, kAirspeed = 0x07E2;
inline constexpr uint32_t kCourse1 = 0x0C4E, kCourse2 = 0x0C5E;
inline constexpr uint32_t kTrim = 0x0BC0, kFlaps = 0x0BDC, kAutoThrottle = 0x0810;

// A session with one Multi Panel, whose logic is driven directly.
struct MultiPanelFlight : PanelFlight {
    enum class Position : int32_t { None, ALT, VS, IAS, HDG, CRS };
    enum class Button : int32_t { AP = 1, HDG, NAV, IAS, ALT, VS, APR, REV };

    VirtualDevice& device = Plug(PanelKind::Multi);
    Position position = Position::None;

    void Fly(const std::string& mode = "", const std::string& keys = "") {
        FlyWith("[Common]\r\nSpecialMode=" + mode + "\r\n[MultiPanel1]\r\n" + keys);
    }
    // What the pilot does. Steps are clockwise or up, with a minus the other way, and so many
    // within one event.
    void MoveSelectorTo(Position to) {
        const Position from = std::exchange(position, to);
        Logic().SelectorChange(static_cast<int32_t>(to), static_cast<int32_t>(from));
    }
    void TurnKnob(int steps) { Logic().Rotary(Way(steps), Speed(steps)); }
    void TurnTrim(int steps) { Logic().Trim(Way(steps), Speed(steps)); }
    void FlapsUp() { Logic().Flaps(1); }
    void FlapsDown() { Logic().Flaps(0); }
    void SetAutoThrottle(bool arm) { Logic().AutoThrottleChange(arm ? 1 : 0); }
    template <class... Buttons>
    void Click(Buttons... buttons) {
        (Logic().ButtonClick(static_cast<int32_t>(buttons)), ...);
    }
    template <class... Buttons>
    void LongClick(Buttons... buttons) {
        (Logic().ButtonLongClick(static_cast<int32_t>(buttons)), ...);
    }

    // The rows with the selector there.
    std::string RowsAt(Position at) {
        MoveSelectorTo(at);
        Sent();
        return Shown();
    }
    std::string SentAndShown() {
        const std::string sent = Sent();
        return sent + Shows(Shown());
    }
    int Lights() { return device.featureReports.back()[11]; }

  private:
    static int16_t Way(int steps) { return steps > 0 ? 1 : 0; }
    static int16_t Speed(int steps) { return static_cast<int16_t>(std::abs(steps)); }
};
