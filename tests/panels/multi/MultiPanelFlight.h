#pragma once

#include <cstdlib>

#include "tests/panels/PanelFlight.h"

// What the simulator has for the panel.
inline constexpr uint32_t kHeading = 0x07CC;   // 65536 is a full circle
inline constexpr uint32_t kAltitude = 0x07D4;  // metres x 65536
inline constexpr uint32_t kVerticalSpeed = 0x07F2, kAirspeed = 0x07E2;
inline constexpr uint32_t kCourse1 = 0x0C4E, kCourse2 = 0x0C5E;
inline constexpr uint32_t kTrim = 0x0BC0, kFlaps = 0x0BDC, kAutoThrottle = 0x0810;

// A session with one Multi Panel. Its control's events come to its logic as in the program.
struct MultiPanelFlight : PanelFlight {
    enum Position : int32_t { None, ALT, VS, IAS, HDG, CRS };
    enum class Button : int32_t { AP = 1, HDG, NAV, IAS, ALT, VS, APR, REV };

    VirtualDevice& device = Plug(PanelKind::Multi);
    Position position = None;

    void Fly(const std::string& mode = "", const std::string& keys = "") {
        FlyWith("[Common]\r\nSpecialMode=" + mode + "\r\n[MultiPanel1]\r\n" + keys);
    }
    // What the pilot does. Steps are clockwise or up, with a minus the other way, and so many
    // within one event.
    void MoveSelectorTo(Position to) {
        Multi().SelectorChange.Raise(Bit(to), Bit(std::exchange(position, to)));
    }
    void TurnKnob(int steps) { Turn(steps, Multi().RotaryUp, Multi().RotaryDown); }
    void TurnTrim(int steps) { Turn(steps, Multi().TrimUp, Multi().TrimDown); }
    void FlapsUp() { Multi().FlapsUp.Raise(); }
    void FlapsDown() { Multi().FlapsDown.Raise(); }
    void SetAutoThrottle(bool arm) { Multi().AutoThrottleChange.Raise(arm); }
    template <class... Buttons>
    void Click(Buttons... buttons) {
        (Multi().ButtonClick.Raise(Bit(buttons)), ...);
    }
    template <class... Buttons>
    void LongClick(Buttons... buttons) {
        (Multi().ButtonLongClick.Raise(Bit(buttons)), ...);
    }

    // The rows with the selector there.
    std::string RowsAt(Position at) {
        MoveSelectorTo(at);
        Sent();
        return Shown();
    }
    int Lights() { return device.featureReports.back()[11]; }

  private:
    // As the panel sends them.
    static int32_t Bit(Position at) { return at == None ? 0 : 0x008000 << at; }
    static int32_t Bit(Button button) {
        return button == Button::AP ? 0x800000 : 0x000040 << static_cast<int32_t>(button);
    }
    static void Turn(int steps, Event<int16_t>& up, Event<int16_t>& down) {
        (steps > 0 ? up : down).Raise(static_cast<int16_t>(std::abs(steps)));
    }
};
