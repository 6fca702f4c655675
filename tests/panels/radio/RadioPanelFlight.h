#pragma once

#include <cstdlib>

#include "tests/panels/PanelFlight.h"

// What the simulator has for the panel. Most of it is BCD without the leading digit.
inline constexpr uint32_t kCOM1 = 0x034E, kCOM1Standby = 0x311A, kCOM2 = 0x3118,
                          kCOM2Standby = 0x311C, kNAV1 = 0x0350, kNAV1Standby = 0x311E,
                          kNAV2 = 0x0352, kNAV2Standby = 0x3120;
inline constexpr uint32_t kADF1 = 0x034C, kADF1Extension = 0x0356, kADF2 = 0x02D4,
                          kADF2Extension = 0x02D6;
inline constexpr uint32_t kDME1 = 0x0300, kDME1Speed = 0x0302, kDME1Time = 0x0304, kDME2 = 0x0306,
                          kDME2Speed = 0x0308, kDME2Time = 0x030A;  // tenths
inline constexpr uint32_t kXPDR = 0x0354;
inline constexpr uint32_t kAltimeter = 0x0330;  // sixteenths of a hPa
inline constexpr uint32_t kSwap = 0x3123;       // 8 COM1, 4 COM2, 2 NAV1, 1 NAV2

// A session with two Radio Panels. Their controls' events come to their logics as in the program.
struct RadioPanelFlight : PanelFlight {
    enum Row : uint8_t { Upper = 1, Lower };
    enum Position : int32_t { None, COM1, COM2, NAV1, NAV2, ADF, DME, XPDR };

    VirtualDevice& device = Plug(PanelKind::Radio);
    VirtualDevice& device2 = Plug(PanelKind::Radio, 2);
    Row row = Upper;
    int panel = 1;

    void Fly(const std::string& keys = "") {
        FlyWith("[Common]\n" + keys + "\n[RadioPanel1]\n" + keys + "\n[RadioPanel2]\nADFMode=3");
    }
    // What the pilot does, in the row where the hand is. Steps are clockwise, with a minus the
    // other way, and so many within one event.
    void At(Row theRow, int thePanel = 1) {
        row = theRow;
        panel = thePanel;
    }
    void MoveSelectorTo(Position to) { Radio(panel).SelectorChange.Raise(row, Bit(to), 0); }
    void TurnInner(int steps) { Turn(0, steps); }
    void TurnOuter(int steps) { Turn(1, steps); }
    void Click() { Radio(panel).ButtonClick.Raise(Button()); }
    void LongClick() { Radio(panel).ButtonLongClick.Raise(Button()); }
    void Release() { Radio(panel).ButtonUp.Raise(Button()); }

    // "active|standby" of the row.
    std::string Shown() override {
        const auto& shown = Radio(panel).OnScreen.At(row);
        return shown.labActive.Caption.Get() + "|" + shown.labStandby.Caption.Get();
    }
    int Engine() const { return program->Session.EngineSelected; }

  private:
    // As the panel sends them.
    int32_t Button() const { return 0x4000 * row; }
    int32_t Bit(Position at) const {
        if (at == None) return 0;
        return row == Upper ? 0x008000 << at : at == COM1 ? 0x800000 : 0x000040 << at;
    }
    void Turn(int32_t ring, int steps) {
        auto& turned = steps > 0 ? Radio(panel).RotaryUp : Radio(panel).RotaryDown;
        turned.Raise(2 * (row - Upper) + ring, static_cast<int16_t>(std::abs(steps)));
    }
};
