#include "bench/flight/RadioLeg.h"

namespace bench {

namespace {

// What is shown once it has been tuned.
constexpr RadioRow kCom1 = {"118.55", "118.10"};
constexpr RadioRow kNav1 = {"113.40", "110.50"};
constexpr RadioRow kAdf = {"0347.5", "0345.3"};
constexpr RadioRow kTransponder = {"29.94", "2.345"};

}  // namespace

bool RadioLeg::ExpectStart() const {
    const std::string start = RadioShows({"118.10", "119.52"}, {"118.10", "119.52"});
    return ExpectPanel(start, "radio1") && ExpectPanel(start, "radio2");
}

bool RadioLeg::Take(const std::string& panel, std::initializer_list<Step> steps) const {
    for (const Step& step : steps) {
        Do(step.act, panel);
        if (!ExpectPanel(RadioShows(step.upper, step.lower), panel)) return false;
    }
    return true;
}

bool RadioLeg::TuneAndSwap() const {
    log_.Say("-- COM1 and NAV1 are tuned and swapped on one Radio Panel; the other shows it too");
    const RadioRow nav = {"110.50", "112.30"};
    const bool well = Take("radio1", {{"lower NAV1", {"118.10", "119.52"}, nav},
                                      {"upper-inner +1 60", {"118.10", "119.55"}, nav},
                                      {"upper-outer -1 60", {"118.10", "118.55"}, nav},
                                      {"press upper", kCom1, nav}}) &&
                      ExpectWrites({"311A", "3123"}, "311A:5519 311A:5518 3123:08") &&
                      Take("radio1", {{"lower-inner +2 60", kCom1, {"110.50", "112.40"}},
                                      {"lower-outer +1 60", kCom1, {"110.50", "113.40"}},
                                      {"press lower", kCom1, kNav1}}) &&
                      ExpectWrites({"311E", "3123"}, "311E:3512 311E:4012 311E:4013 3123:02") &&
                      ExpectPanel(RadioShows(kCom1, kCom1), "radio2");
    if (well) log_.Shot("04-radio-com-nav");
    return well;
}

bool RadioLeg::TuneADF() const {
    log_.Say("-- the first panel prepares ADF1 and swaps; the second tunes both ADFs at once");
    return Take("radio1", {{"upper ADF", {"0345.3", "0345.3"}, kNav1},
                           {"upper-outer +2 60", {"0345.3", "0347.3"}, kNav1},
                           {"upper-inner +1 60", {"0345.3", "0347.4"}, kNav1},
                           {"press upper", {"0347.4", "0345.3"}, kNav1}}) &&
           ExpectWrites({"034C", "0356"}, "034C:4703 0356:0400") &&
           Take("radio2", {{"lower ADF", kCom1, {"1234.5", "0347.4."}},
                           {"lower-inner +1 60", kCom1, {"1234.5", "0347.5."}},
                           {"press lower", kCom1, {"1234.5.", "0347.5"}},
                           {"lower-outer -1 60", kCom1, {"1233.5.", "0347.5"}}}) &&
           ExpectWrites({"034C", "0356", "02D4", "02D6"},
                        "034C:4703 0356:0500 02D4:3302 02D6:0501") &&
           ExpectPanel(RadioShows(kAdf, kNav1), "radio1");
}

bool RadioLeg::ReadDME() const {
    log_.Say("-- DME stations near and out of range: distance, speed and time");
    if (!Take("radio1", {{"lower DME", kAdf, {"12.3", "123"}}})) return false;
    cockpit_.Simulator("set 0x0300 2 56");
    if (!ExpectPanel(RadioShows(kAdf, {"05.6", "123"}), "radio1") ||
        !Take("radio1", {{"press lower", kAdf, {"1 05.6", "125"}},
                         {"press lower 800", kAdf, {"1 05.6", "05."}}})) {
        return false;
    }
    cockpit_.Simulator("set 0x0300 2 0");
    return ExpectPanel(RadioShows(kAdf, {"1  . . .", " . . ."}), "radio1") &&
           Take("radio1", {{"press lower", kAdf, {"2 123", "59."}},
                           {"press lower", kAdf, {" . . .", "123"}},
                           {"lower ADF", kAdf, kAdf}});
}

bool RadioLeg::SetCode() const {
    log_.Say("-- the transponder's code is set digit by digit");
    return Take("radio1", {{"upper XPDR", {"29.92", "1.200"}, kAdf},
                           {"upper-inner +1 60", {"29.92", "2.200"}, kAdf},
                           {"press upper", {"29.92", "22.00"}, kAdf},
                           {"upper-inner +1 60", {"29.92", "23.00"}, kAdf},
                           {"press upper", {"29.92", "230.0"}, kAdf},
                           {"upper-inner +4 60", {"29.92", "234.0"}, kAdf},
                           {"press upper", {"29.92", "2340."}, kAdf},
                           {"upper-inner -3 60", {"29.92", "2345."}, kAdf},
                           {"press upper", {"29.92", "2.345"}, kAdf}}) &&
           ExpectWrites({"0354"},
                        "0354:0022 0354:0023 0354:1023 0354:2023 0354:3023 0354:4023 "
                        "0354:4723 0354:4623 0354:4523");
}

bool RadioLeg::SetAltimeter() const {
    log_.Say("-- the altimeter is set in both units, on each panel in its own");
    const bool well =
        Take("radio1", {{"press upper 800", {"1013", "2.345"}, kAdf},
                        {"upper-outer +2 60", {"1015", "2.345"}, kAdf}}) &&
        Take("radio2", {{"upper XPDR", {"29.97", "2.345"}, {"1233.5.", "0347.5"}}}) &&
        ExpectPanel(RadioShows({"1015", "2.345"}, kAdf), "radio1") &&
        Take("radio1", {{"press upper 800", {"29.97", "2.345"}, kAdf},
                        {"upper-outer -4 60", kTransponder, kAdf}}) &&
        ExpectWrites({"0330"}, "0330:603F 0330:703F 0330:6C3F 0330:683F 0330:643F 0330:603F");
    if (well) log_.Shot("05-radio-adf-xpdr");
    return well;
}

bool RadioLeg::PickCourse() const {
    log_.Say("-- the first panel's upper selector picks the course of the Multi Panel");
    const struct {
        const char* act;
        RadioRow upper;
        const char* course;
    } steps[] = {
        {"upper COM2", {"121.50", "123.45"}, "270"},
        {"upper NAV1", kNav1, "089"},
        {"upper NAV2", {"113.90", "115.05"}, "270"},
        {"upper XPDR", kTransponder, "270"},
        {"upper COM1", kCom1, "089"},
    };
    if (!Take("radio2", {{"lower COM1", kTransponder, kCom1}}) ||
        !Take("radio1", {{"lower COM1", kTransponder, kCom1}})) {
        return false;
    }
    for (const char* panel : {"radio2", "radio1"}) {
        for (const auto& step : steps) {
            const std::string course = panel == std::string("radio1") ? step.course : "089";
            if (!Take(panel, {{step.act, step.upper, kCom1}}) ||
                !ExpectPanel(PanelShows(course, "", "HDG"))) {
                return false;
            }
        }
    }
    return true;
}

}  // namespace bench
