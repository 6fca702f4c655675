#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "simlink/channel/OffsetRows.h"
#include "simlink/channel/TickValues.h"
#include "simlink/channel/cSession.h"

// The autopilot's values of one Multi Panel in the standard and the NGX mode: as the simulator gave
// them at the last tick and the knob has changed them since. Positions are those of
// MultiPanelNumber.h. `secondCourse`: whether CRS is that of NAV2.
class MultiPanelValues {
  public:
    // `offsets` has the rows of kMultiOffsets.
    MultiPanelValues(cSession& session, const OffsetRows& offsets)
        : session_(session), offsets_(offsets), read_(session) {}

    // A tick has read them.
    void Refresh();
    // Bindings or mode have changed: nothing is known until the next tick.
    void Forget() { read_.Forget(); }
    bool AreRead() const { return read_.AreRead(); }
    const TickValues& Ticks() const { return read_; }

    // The rows at a position; others leave the texts as they are.
    void Show(int32_t position, bool secondCourse, std::string& upper, std::string& lower) const;
    // Turns the value of a position by steps, down for negative ones, and writes it to the
    // simulator in the way of the standard mode. A tick has to have read it before.
    void Turn(int32_t position, bool secondCourse, int step);

  private:
    double Read(size_t value) const { return offsets_[value].Data(); }
    void ShowStandard(bool speed, std::string& upper, std::string& lower) const;
    void ShowNGX(bool speed, std::string& upper, std::string& lower) const;
    void Write(size_t value, int32_t dataType, double number);

    cSession& session_;
    const OffsetRows& offsets_;
    TickValues read_;
    int16_t headingBug_ = 0;
    double speedValue_ = 0;
    int32_t altitudeValue_ = 0;
    int16_t verticalSpeed_ = 0;
    std::array<int16_t, 2> courseValue_{};
};
