#include "bench/flight/AddOnLegs.h"

#include "bench/driver/Until.h"
#include "bench/flight/BIPLeg.h"
#include "bench/flight/RadioLeg.h"
#include "bench/flight/SwitchLeg.h"

namespace bench {

namespace {

constexpr uint32_t kSavedWithinMs = 5000;

}  // namespace

void AddOnLegs::WriteProfiles() const {
    cockpit_.WriteIni(
        "[Profiles]\r\nAirliner= \r\nJet= \r\n"
        "[Aircrafts]\r\nBench Airliner=Airliner\r\nBench Jet=Jet\r\n");
    cockpit_.WriteFile("Default.ini",
                       std::string("[MultiPanel1]\r\nLongButtonActionHDG=VButton,64,3\r\n")
                           .append(RadioLeg::kBindings)
                           .append(SwitchLeg::Bindings())
                           .append(BIPLeg::kTiles));
    cockpit_.WriteFile("Airliner.ini",
                       std::string("[Common]\r\nSpecialMode=ngx\r\n").append(BIPLeg::kNGXTiles));
    cockpit_.WriteFile("Jet.ini", "[Common]\r\nSpecialMode=maddog\r\n");
}

void AddOnLegs::SetUpNGX() const {
    for (const char* value : {"0x6520 2 214",         // course
                              "0x6524 4 0x3F47AE14",  // Mach 0.78 as a float
                              "0x652C 2 247",         // heading
                              "0x652E 2 33000",       // altitude
                              "0x6530 2 0xF8F8",      // -1800 feet per minute
                              "0x6545 1 1"}) {        // lamp of CMD A
        cockpit_.Simulator(std::string("set ") + value);
    }
}

bool AddOnLegs::FlyNGX() const {
    log_.Say("-- an aircraft with the NGX profile is loaded");
    SetUpNGX();
    if (!ChangeAircraft("Bench Airliner", "Airliner")) return false;
    const std::pair<const char*, std::string> positions[] = {
        {"ALT", PanelShows("33000", "-1800", "AP")}, {"CRS", PanelShows("214", "", "AP")},
        {"IAS", PanelShows("0 780", "", "AP")},      {"VS", PanelShows("33000", "-1800", "AP")},
        {"HDG", PanelShows("247", "", "AP")},
    };
    for (const auto& [position, shown] : positions) {
        Do(std::string("selector ") + position);
        if (!ExpectPanel(shown)) return false;
    }
    cockpit_.Simulator("controls");
    Do("knob +2 60");
    Do("press AP");
    Do("press AP 800");
    for (const char* act : {"upper XPDR", "press upper 800", "upper-outer +1 60", "upper COM1"}) {
        Do(act, "radio1");
    }
    return ExpectControls(
               "70022:16384 70022:16384 70034:536870912 70035:536870912 "
               "69998:536870912 69997:16384") &&
           SwitchLeg(cockpit_, log_).FlyNGX() && BIPLeg(cockpit_, log_).FlyNGX();
}

bool AddOnLegs::FlyMaddog() const {
    log_.Say("-- an aircraft with the Maddog profile is loaded");
    if (!ChangeAircraft("Bench Jet", "Jet")) return false;
    Do("selector ALT");
    if (!ExpectPanel(PanelShows("00000", "0")) || !ExpectPanel("tiles dark", "bip1")) return false;
    Do("knob +2 60");
    if (!ExpectPanel(PanelShows("00200", "0"))) return false;
    Do("press REV");
    Do("lower NAV1", "radio1");
    if (!ExpectPanel(RadioShows({"118.55", "118.10"}, {"", "113.40"}), "radio1")) return false;
    Do("lower-inner +1 60", "radio1");
    Do("lower COM1", "radio1");
    return ExpectControls("69662:100 69663:100 69662:200 69663:200 69740:1 69671:1 69633:4933");
}

bool AddOnLegs::ComeBack() const {
    log_.Say("-- the first aircraft is loaded again");
    Do("selector HDG");
    if (!ChangeAircraft("Bench Trainer", "Default")) return false;
    if (!ExpectPanel(PanelShows("083", "", "HDG"))) return false;
    const auto ini = [this] { return cockpit_.ReadFile("Orvo.ini").value_or("nothing"); };
    const bool bound = Until(kSavedWithinMs, [&] {
        return ini().find("Bench Trainer=Default\r\n") != std::string::npos;
    });
    return log_.Check("Orvo.ini binds the new aircraft to Default", bound, ini());
}

}  // namespace bench
