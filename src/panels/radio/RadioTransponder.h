#pragma once

#include <cstdint>
#include <string>

#include "simlink/actions/EventOutput.h"
#include "simlink/channel/OffsetRows.h"
#include "simlink/channel/cSession.h"

// The XPDR position of one Radio Panel: the altimeter setting, and the transponder code, of which
// the knob changes one digit. The NGX has an altimeter and a unit of its own.
class RadioTransponder {
  public:
    // `offsets` has the rows of kRadioOffsets.
    RadioTransponder(cSession& session, EventOutput& output, const OffsetRows& offsets)
        : session_(session), output_(output), offsets_(offsets) {}

    void SetInHg(bool inHg) { altimeterInHg_ = inHg; }
    // For a tick that has read the altimeter and the code.
    void Read();
    // The altimeter on the left; the code on the right, with a point behind the digit that the knob
    // changes.
    void Show(std::string& active, std::string& standby) const;

    void NextDigit() { digit_ = static_cast<uint8_t>(digit_ % 4 + 1); }
    void ToggleUnit();
    // One step. A tick has to have read the value before.
    void TurnDigit(bool up);
    void TurnAltimeter(bool up);

  private:
    cSession& session_;
    EventOutput& output_;
    const OffsetRows& offsets_;
    float qnh_ = 0;  // hPa
    bool altimeterInHg_ = false;
    std::string code_;   // four digits
    uint8_t digit_ = 1;  // 1 to 4, the one that the knob changes
};
