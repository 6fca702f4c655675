#include "bench/flight/StandardLeg.h"

namespace bench {

bool StandardLeg::TurnAllPositions() const {
    log_.Say("-- all five positions are read and turned");
    const struct {
        const char* position;
        std::string before;
        const char* turn;
        std::string after;
    } steps[] = {
        {"ALT", PanelShows("05000", "0"), "knob +3 60", PanelShows("05300", "0")},
        {"VS", PanelShows("05300", "0"), "knob -2 60", PanelShows("05300", "-200")},
        {"IAS", PanelShows("120", ""), "knob +5 60", PanelShows("125", "")},
        {"HDG", PanelShows("080", ""), "knob +3 60", PanelShows("083", "")},
        {"CRS", PanelShows("090", ""), "knob -1 60", PanelShows("089", "")},
    };
    for (const auto& step : steps) {
        Do(std::string("selector ") + step.position);
        if (!ExpectPanel(step.before)) return false;
        Do(step.turn);
        if (!ExpectPanel(step.after)) return false;
    }
    cockpit_.Simulator("writes");
    return true;
}

bool StandardLeg::UseSecondPanel() const {
    log_.Say("-- the second Multi Panel stands elsewhere, and turns the same aircraft");
    Do("selector HDG", "multi2");
    if (!ExpectPanel(PanelShows("083", ""), "multi2")) return false;
    Do("knob +2 60", "multi2");
    if (!ExpectPanel(PanelShows("085", ""), "multi2") || !ExpectPanel(PanelShows("089", ""))) {
        return false;
    }
    Do("knob -2 60", "multi2");
    return ExpectPanel(PanelShows("083", ""), "multi2");
}

bool StandardLeg::PressButtons() const {
    log_.Say("-- a click turns heading hold on; a long one presses the button of the profile");
    Do("press HDG");
    if (!ExpectWrites({"07C8"}, "07C8:01000000")) return false;
    Do("press HDG 800");
    return ExpectWrites({"07C8", "3340"}, "3340:04000000 3340:00000000") &&
           ExpectPanel(PanelShows("089", "", "HDG"));
}

bool StandardLeg::MoveLevers() const {
    log_.Say("-- trim, flaps and auto-throttle");
    Do("trim +2 60");
    if (!ExpectWrites({"0BC0"}, "0BC0:2000 0BC0:4000")) return false;
    Do("flaps down");
    Do("flaps centre");
    if (!ExpectWrites({"0BDC"}, "0BDC:FF0F")) return false;
    Do("throttle arm");
    return ExpectWrites({"0810"}, "0810:01000000");
}

}  // namespace bench
