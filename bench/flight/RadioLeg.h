#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

#include "bench/flight/FlightChecks.h"

namespace bench {

// Two Radio Panels in their built-in way, beside the Multi Panel: every position is read, and one
// of each kind is tuned. Their selectors end where they began, at COM1.
class RadioLeg : private FlightChecks {
  public:
    using FlightChecks::FlightChecks;

    // What it counts on in the profile, for behind the keys of [MultiPanel1].
    static constexpr std::string_view kBindings =
        "CourseSel=0\r\n[RadioPanel1]\r\nADFMode=3\r\n[RadioPanel2]\r\nADFMode=2\r\n";

    // The panels as they are in an aircraft that has just been loaded.
    bool ExpectStart() const;

    bool Fly() const {
        return TuneAndSwap() && TuneADF() && ReadDME() && SetCode() && SetAltimeter() &&
               PickCourse();
    }

  private:
    struct Step {
        const char* act;
        RadioRow upper;
        RadioRow lower;
    };

    bool Take(const std::string& panel, std::initializer_list<Step> steps) const;
    bool TuneAndSwap() const;
    bool TuneADF() const;
    bool ReadDME() const;
    bool SetCode() const;
    bool SetAltimeter() const;
    bool PickCourse() const;
};

}  // namespace bench
