#include "bench/flight/ScriptedFlight.h"

#include <string>
#include <vector>

#include "bench/flight/Pilot.h"

namespace bench {

const char kFlightTiles[] =
    "[BIPPanel1]\r\nT0=ENG_FIRE,Red\r\nT1=ENG_1_FIRE,Red\r\nT2=ENG_2_FIRE,Yellow\r\n"
    "T3=LOW_PRESSURE,Red,19\r\nT4=OIL_PRESSURE,Yellow,20\r\nT5=ENG_OIL_TEMP,Yellow,65\r\n"
    "T6=FUEL_LOW,Yellow,15\r\nT7=FUEL_CROSS_FEED,Green\r\nT8=LEFT_FUEL_LOW,Yellow,15\r\n"
    "T9=CENTRE_FUEL_LOW,Yellow,15\r\nT10=RIGHT_FUEL_LOW,Red,60\r\nT11=DOOR_WARNING,Yellow\r\n"
    "T12=STALL_WARNING,Red\r\nT13=VAC_LOW,Yellow,60\r\nT14=PITOT_HEAT,Green\r\n"
    "T15=PARKING_BRAKES,Green\r\nT16=COMBINED_OMI,Green\r\nT17=OUTER_MARKER,Green\r\n"
    "T18=MIDDLE_MARKER,Red\r\nT19=INNER_MARKER,Yellow\r\nT20=BEACON_LIGHT,Green\r\n"
    "T21=STROBE_LIGHT,Green\r\nT22=NAV_1,Green\r\nT23=NAV,Green\r\n"
    "[BIPPanel2]\r\nT0=COMBINED_GEAR,Yellow\r\nT1=GEAR_UNSAFE,Yellow\r\nT2=GEAR_UP,Green\r\n"
    "T3=GEAR_DOWN,Green\r\nT7=ENG_FIRE,Yellow\r\n";

namespace {

constexpr char kDefaultKeys[] =
    "[MultiPanel1]\r\nLongButtonActionHDG=VButton,64,3\r\n[RadioPanel1]\r\n"
    "ADFMode=3\r\n"
    "[SwitchPanel1]\r\nSwitchPITOTOff=VButton,64,5\r\n"
    "[SwitchPanel2]\r\nSwitchBATOff=None\r\nSwitchALTOff=None\r\n"
    "SwitchAVIONICSOff=None\r\nSwitchFUELPUMPOff=None\r\nSwitchDEICEOff=None\r\n"
    "SwitchPITOTOff=None\r\nSwitchCOWLOff=None\r\nSwitchPANELOff=None\r\nSwitchBEACONOff=None\r\n"
    "SwitchNAVOff=None\r\nSwitchSTROBEOff=None\r\nSwitchTAXIOff=None\r\nSwitchLANDINGOff=None\r\n";

constexpr char kNGXKeys[] =
    "[Common]\r\nSpecialMode=ngx\r\n"
    "[BIPPanel1]\r\nT0=MASTER_CAUTION,Yellow\r\nT1=ENG_1_FIRE,Red\r\nT2=ENG_2_FIRE,Red\r\n"
    "T3=FUEL_LOW,Yellow,15\r\nT4=DOOR_WARNING,Yellow\r\nT5=PARKING_BRAKES,Green\r\n"
    "T8=AP_PRST\r\nT9=AT_PRST\r\nT10=FMC_PRST\r\nT16=NOSE_GEAR,Green\r\n"
    "T17=LEFT_GEAR,Green\r\nT18=RIGHT_GEAR,Green\r\nT23=GEAR_DOWN,Green\r\n"
    "[BIPPanel2]\r\nT23=FUEL_CROSS_FEED,Red\r\n";

constexpr char kMainTitle[] = "ORVO    v0.5.1";
constexpr char kProfiles[] = "ORVO - Profiles Configuration";
constexpr char kAircraftProfile[] = "ORVO - Select Aircraft Profile";
constexpr char kRadioDark[] = "upper dark dark lower dark dark";
constexpr char kRadiosAtStart[] = R"(upper "118.10" "119.52" lower "118.10" "119.52")";
constexpr char kRadiosTuned[] = R"(upper "118.55" "118.10" lower "118.55" "118.10")";
constexpr char kCourse089[] = R"(upper "  089" lower "     " lights HDG)";
constexpr char kGearDown[] = "gear nose green left green right green";
constexpr char kGearMoves[] = "gear nose red left red right red";
constexpr char kGearDark[] = "gear nose off left off right off";
constexpr char kWarnings[] =
    "tiles 0 red 2 yellow 3 red 4 yellow 5 yellow 6 yellow 7 green 8 yellow 11 yellow 12 red "
    "13 yellow 14 green 15 green 16 yellow 19 yellow 20 green 21 green 22 green 23 green";
constexpr char kWarningsSetUp[] =
    "tiles 0 yellow 1 red 2 yellow 3 red 4 yellow 5 yellow 6 yellow 7 green 8 yellow 11 yellow "
    "12 red 13 yellow 14 green 15 green 16 yellow 19 yellow 20 green 21 green 22 green 23 green";
constexpr char kConnected[] =
    "FSUIPC Status: Connected | FSUIPC Version: 3.9990 | Flight Simulator Version: FSX | "
    "Aircraft in use: Bench Trainer";
constexpr char kDisconnected[] =
    "FSUIPC Status: Disconnected | FSUIPC Version: | Flight Simulator Version: | Aircraft in use:";

const std::vector<Step> kFlight = {
    {"--", "the simulator, two panels of each of the four kinds and Orvo are started"},
    {"simulator", "start; batches"},
    {"panels", "start; add radio; add radio; add multi; add multi"},
    {"panels", "add switch; add switch; add bip; add bip"},
    {"orvo", "start", "window hidden"},
    {"--", "Orvo finds the simulator, and shows its window"},
    {"status", "", kConnected},
    {"multi1 multi2", "", R"(upper "05000" lower "    0" lights none)"},
    {"radio1 radio2", "", kRadiosAtStart},
    {"switch1 switch2", "", kGearDown},
    {"bip1", "", "tiles 10 red 23 green"},
    {"bip2", "", "tiles 0 green 3 green"},
    {"icon", "remember; double click"},
    {"orvo", "", "window open"},
    {"profile", "", "Default"},
    {"screen", "01-general"},

    {"--", "in the General Options a long click is made longer: then 800 ms are a short one"},
    {"window", "press Setup", "ORVO - General Options"},
    {"screen", "02-general-options"},
    {"window", "slider 1500; tab Process Priority"},
    {"screen", "03-process-priority"},
    {"window", "press OK", kMainTitle},
    {"multi1", "press HDG 800; press HDG 800", R"(upper "05000" lower "    0" lights none)",
     "0810:00000000 07C8:01000000 07C8:00000000"},
    {"window", "press Setup; slider 500; press OK", kMainTitle},

    {"--", "values are read and turned on two Multi Panels"},
    {"tab", "Multi Panel 1"},
    {"multi1", "selector HDG", R"(upper "  080" lower "     " lights none)"},
    {"screen", "04-heading-080"},
    {"display", "remember"},
    {"multi1", "selector ALT; knob +3 60", R"(upper "05300" lower "    0" lights none)"},
    {"multi1", "selector VS; knob -2 60", R"(upper "05300" lower " -200" lights none)"},
    {"multi1", "selector CRS; knob -1 60", R"(upper "  089" lower "     " lights none)"},
    {"multi2", "selector HDG; knob +3 60", R"(upper "  083" lower "     " lights none)"},
    {"--", "a click turns heading hold on; a long one presses the button of the profile"},
    {"multi1", "press HDG", kCourse089, "07C8:01000000"},
    {"multi1", "press HDG 800", kCourse089, "3340:04000000 3340:00000000"},
    {"multi1", "trim +2 60; flaps down; flaps centre; throttle arm", "",
     "0BC0:2000 0BC0:4000 0BDC:FF0F 0810:01000000"},
    {"screen", "05-standard"},
    {"display", "", "changed"},

    {"--", "COM1 and NAV1 are tuned and swapped on one Radio Panel; the other shows it too"},
    {"tab", "Radio Panel 1"},
    {"radio1", "lower NAV1", R"(upper "118.10" "119.52" lower "110.50" "112.30")"},
    {"radio1", "upper-inner +1 60; upper-outer -1 60; press upper",
     R"(upper "118.55" "118.10" lower "110.50" "112.30")", "311A:5519 311A:5518 3123:08"},
    {"radio1", "lower-inner +2 60; lower-outer +1 60; press lower",
     R"(upper "118.55" "118.10" lower "113.40" "110.50")", "311E:3512 311E:4012 311E:4013 3123:02"},
    {"radio2", "", kRadiosTuned},
    {"screen", "06-radio-com-nav"},
    {"--", "DME, ADF, transponder and altimeter; this in units of its own on each panel"},
    {"radio1", "lower DME", R"(upper "118.55" "118.10" lower "  12.3" "  123")"},
    {"radio1", "upper XPDR; lower ADF", R"(upper " 29.92" " 1.200" lower "0345.3" "0345.3")"},
    {"radio1", "lower-outer +2 60; press lower",
     R"(upper " 29.92" " 1.200" lower "0347.3" "0345.3")", "034C:4703 0356:0300"},
    {"radio1", "upper-inner +1 60; press upper 800; upper-outer +2 60",
     R"(upper " 1015" " 2.200" lower "0347.3" "0345.3")", "0354:0022 0330:603F 0330:703F"},
    {"radio2", "upper XPDR", R"(upper " 29.97" " 2.200" lower "118.55" "118.10")"},
    {"screen", "07-radio-adf-xpdr"},
    {"radio1", "upper COM1; lower COM1", kRadiosTuned},
    {"radio2", "upper COM1", kRadiosTuned},

    {"--", "the first switch that is thrown is told as all of them: avionics go off"},
    {"tab", "Switch Panel 1"},
    {"switch1", "bat on", kGearDown},
    {"multi1 multi2", "", kMultiDark},
    {"radio1 radio2", "", kRadioDark},
    {"bip1 bip2", "", "tiles dark"},
    {"switch1", "avionics on", kGearDown, "3103:01"},
    {"multi1", "", kCourse089},
    {"radio1 radio2", "", kRadiosTuned},
    {"bip2", "", "tiles 0 green 3 green"},
    {"switch1", "bat off", kGearDark, "3102:00"},
    {"multi1 multi2", "", kMultiDark},
    {"switch1", "bat on", kGearDown, "3102:01"},
    {"--", "other switches are thrown, and the selectors turned"},
    {"switch1", "alt on; pitot on; pitot off", "",
     "3B78:01000000 3AB8:01000000 39F8:01000000 3938:01000000 "
     "029C:01 3340:10000000 3340:00000000"},
    {"switch1", "panel on; beacon on; nav on; strobe on", "",
     "0D0C:2000 0D0C:2200 0D0C:2300 0D0C:3300"},
    {"switch2", "selector R", "", "0892:0100 092A:0100 09C2:0100 0A5A:0100 0BE8:FF3F0000"},
    {"switch1", "selector BOTH", "", "0892:0300 092A:0300 09C2:0300 0A5A:0300"},
    {"--", "the second panel's lever raises the gear, the first one's lowers it again"},
    {"switch2", "gear up", kGearMoves, "0BE8:00000000"},
    {"bip2", "", "tiles 0 red 1 yellow"},
    {"screen", "08-switch-gear-moves"},
    {"switch1 switch2", "", kGearDark},
    {"bip2", "", "tiles 2 green"},
    {"switch1", "gear between; gear down", kGearMoves, "0BE8:FF3F0000"},
    {"switch1 switch2", "", kGearDown},

    {"--", "engine 2 is on fire, a door is open, and most else is wrong"},
    {"tab", "BIP Panel 1"},
    {"simulator", "set 0x3366 1 2; set 0x3367 1 4; set 0x08F8 4 500; set 0x08BA 2 5999"},
    {"simulator", "set 0x1264 4 8999; set 0x0B7C 4 838860; set 0x0B94 4 0x600000; set 0x341F 1 1"},
    {"simulator", "set 0x036C 1 1; set 0x0B1C 4 0x40000000; set 0x3122 1 0x10; set 0x0BAC 2 1"},
    {"simulator", "set 0x08B8 2 15211; set 0x0BC8 2 32767"},
    {"bip1", "", kWarnings},
    {"bip2", "", "tiles 0 green 3 green 7 yellow"},
    {"screen", "09-bip-warnings"},

    {"--", "each panel is set up in its own window; what is changed there counts from OK on"},
    {"tab", "Multi Panel 1"},
    {"window", "press Setup", "ORVO - Multi Panel Configuration"},
    {"window", "tour 10-multi-setup Mode Selector; press PMDG NGX"},
    {"screen", "10-multi-setup-ngx"},
    {"window", "tab Buttons; tab REV; Short Click: press FSUIPC Virtual Button"},
    {"window", "Short Click: list 2 6; press OK", kMainTitle},
    {"multi1", "press REV", "", "3340:40000000 3340:00000000"},
    {"tab", "Radio Panel 1"},
    {"window", "press Setup", "ORVO - Radio Panel Configuration"},
    {"window", "tour 11-radio-setup Inner Knob; tour 11-radio-setup ADF; press Fixed inHg"},
    {"window", "tab ADF; type 5; press OK", kMainTitle},
    {"radio1", "upper XPDR", R"(upper " 29.97" " 2.200" lower "118.55" "118.10")"},
    {"radio1", "lower ADF; lower-inner +1 60",
     R"(upper " 29.97" " 2.200" lower "0347.3" "0350.3")"},
    {"radio1", "upper COM1; lower COM1", kRadiosTuned},
    {"tab", "Switch Panel 1"},
    {"window", "press Setup", "ORVO - Switch Panel Configuration"},
    {"window", "tour 12-switch-setup Switches; tab Switches; tab De-Ice"},
    {"window", "Event when switched ON: press FSUIPC Virtual Button"},
    {"window", "Event when switched ON: list 2 7; press OK", kMainTitle},
    {"switch1", "deice on", "", "3340:80000000 3340:00000000"},
    {"tab", "BIP Panel 1"},
    {"window", "press Setup", "ORVO - BIP Panel Configuration"},
    {"window", "tour 13-bip-setup Engines"},
    {"window", "tile 0; press Yellow; tile 1; press RIGHT ENGINE FIRE; press OK", kMainTitle},
    {"bip1", "", kWarningsSetUp},

    {"--", "an aircraft with the NGX profile is loaded; knobs and switches click its controls"},
    {"simulator", "set 0x6520 2 214; set 0x6524 4 0x3F47AE14; set 0x652C 2 247"},
    {"simulator", "set 0x652E 2 33000; set 0x6530 2 0xF8F8; set 0x6545 1 1; set 0x6500 1 2"},
    {"simulator", "title \"Bench Airliner\""},
    {"profile", "", "Airliner"},
    {"multi1", "selector ALT", R"(upper "33000" lower "-1800" lights AP)"},
    {"multi1", "selector CRS", R"(upper "  214" lower "     " lights AP)"},
    {"multi1", "selector IAS", R"(upper "0 780" lower "     " lights AP)"},
    {"multi1", "selector HDG", R"(upper "  247" lower "     " lights AP)"},
    {"multi1", "knob +2 60; press AP; press AP 800", "",
     "controls 70022:16384 70022:16384 70034:536870912 70035:536870912"},
    {"radio1", "upper XPDR; press upper 800; upper-outer +1 60; upper COM1", "",
     "controls 69998:536870912 69997:16384"},
    {"switch1", "strobe off; nav off; taxi on; landing on", "",
     "controls 69755:536870912 69749:536870912 69742:536870912"},
    {"switch1", "gear up", "", "controls 70087:-2147483648"},
    {"switch2", "gear down", "", "controls 70087:536870912 70087:536870912"},
    {"bip1", "", "tiles dark"},
    {"simulator", "set 0x6506 1 1; set 0x6504 1 1; set 0x650A 1 1; set 0x6510 1 1"},
    {"simulator", "set 0x65A7 1 1; set 0x6550 1 1; set 0x6552 1 1; set 0x6554 1 1"},
    {"bip1", "", "tiles 0 yellow 1 red 3 yellow 4 yellow 5 green 8 yellow 9 red 10 red"},
    {"simulator", "set 0x6545 4 0; set 0x6573 1 1; set 0x6574 1 1; set 0x6575 1 1; set 0x6469 1 1"},
    {"bip1", "",
     "tiles 0 yellow 1 red 3 yellow 4 yellow 5 green 8 red 9 red 10 red "
     "16 green 17 green 18 green 23 green"},
    {"bip2", "", "tiles 23 red"},
    {"screen", "14-bip-ngx"},

    {"--", "an aircraft with the Maddog profile is loaded"},
    {"simulator", "title \"Bench Jet\""},
    {"profile", "", "Jet"},
    {"multi1", "selector ALT", R"(upper "00000" lower "    0" lights none)"},
    {"bip1", "", "tiles dark"},
    {"multi1", "knob +2 60; press REV", R"(upper "00200" lower "    0" lights none)",
     "controls 69662:100 69663:100 69662:200 69663:200 69740:1 69671:1"},
    {"radio1", "lower NAV1", R"(upper "118.55" "118.10" lower dark "113.40")"},
    {"radio1", "lower-inner +1 60; lower COM1", "", "controls 69633:4933"},

    {"--", "the first aircraft is loaded again, and bound to Default"},
    {"multi1", "selector HDG"},
    {"simulator", "title \"Bench Trainer\""},
    {"profile", "", "Default"},
    {"multi1", "", R"(upper "  083" lower "     " lights HDG)"},
    {"aircraft", "", "[Aircrafts] Bench Airliner=Airliner Bench Jet=Jet Bench Trainer=Default "},
    {"bip1", "", kWarningsSetUp},
    {"tab", "Multi Panel 1"},
    {"screen", "15-back-to-default"},

    {"--", "the simulator is killed; the BIP Panels alone keep what they show"},
    {"simulator", "kill"},
    {"status", "", kDisconnected},
    {"radio1 radio2", "", kRadioDark},
    {"multi1 multi2", "", kMultiDark},
    {"switch1 switch2", "", kGearDark},
    {"bip1", "", kWarningsSetUp},
    {"screen", "16-disconnected"},
    {"icon", "", "changed"},
    {"--", "the simulator is started again; the gear lights come with their next change"},
    {"simulator", "start"},
    {"status", "", kConnected},
    {"multi1", "", R"(upper "  080" lower "     " lights none)"},
    {"radio1 radio2", "", kRadiosAtStart},
    {"bip1", "", "tiles 10 red 23 green"},
    {"bip2", "", "tiles 0 green 3 green"},
    {"screen", "17-connected-again"},
    {"icon display", "", "as remembered"},
    {"switch1 switch2", "", kGearDark},
    {"switch2", "gear up", kGearMoves},
    {"switch1", "", kGearMoves},

    {"--", "a new aircraft asks for its profile, while the panels go on"},
    {"tab", "General"},
    {"window", "press Setup; press ... ask for a profile to bind; press OK", kMainTitle},
    {"simulator", "title \"Bench Seaplane\""},
    {"window", "", kAircraftProfile},
    {"multi1", "knob +2 60", R"(upper "  082" lower "     " lights none)"},
    {"window", "type Floats"},
    {"screen", "18-new-aircraft"},
    {"window", "press OK", kMainTitle},
    {"profile", "", "Floats"},
    {"aircraft", "",
     "[Aircrafts] Bench Airliner=Airliner Bench Jet=Jet Bench Trainer=Default "
     "Bench Seaplane=Floats "},
    {"bip1", "", "tiles dark"},

    {"--", "profiles are added and deleted, but not those that an aircraft has"},
    {"window", "press Manage Profiles", kProfiles},
    {"entries", "", "[Airliner], Jet, Floats, Default"},
    {"screen", "19-profiles"},
    {"window", "press Delete Select. Profile"},
    {"box", "",
     "The selected profile is bound to at list one Aircraft. You can't delete a profile bound."},
    {"screen", "20-profile-bound"},
    {"window", "press OK; press Add new Profile; type My Jet; press OK"},
    {"box", "", "Only letters and numbers are admitted in profiles names"},
    {"screen", "21-profile-name-refused"},
    {"window", "press OK; type Glider"},
    {"screen", "22-profile-name"},
    {"window", "press OK", kProfiles},
    {"entries", "", "Airliner, Jet, Floats, Glider, Default"},
    {"window", "entry Glider; press Delete Select. Profile"},
    {"box", "", "Are you sure you want to delete this profile ?"},
    {"screen", "23-profile-delete"},
    {"window", "press OK", kProfiles},
    {"entries", "", "Airliner, Jet, Floats, Default"},
    {"--", "an aircraft gets another profile"},
    {"window", "tab Aircrafts; double click Bench Trainer", kAircraftProfile},
    {"screen", "24-aircraft-profile"},
    {"window", "list 1 Floats; press OK", kProfiles},
    {"screen", "25-aircrafts"},
    {"aircraft", "",
     "[Aircrafts] Bench Airliner=Airliner Bench Jet=Jet Bench Trainer=Floats "
     "Bench Seaplane=Floats "},

    {"--", "the tiles of a BIP Panel are imported; they count when the window closes"},
    {"window", "tab Profiles; entry Floats; press Import data from other profiles; entry Default"},
    {"screen", "26-import-source"},
    {"window", "press Next; press BIPPanel1"},
    {"screen", "27-import-sections"},
    {"window", "press Next"},
    {"screen", "28-import-confirm"},
    {"window", "press Ok"},
    {"box", "", "Import successfully completed !"},
    {"window", "press OK", kProfiles},
    {"bip1", "", "tiles dark"},
    {"window", "close", kMainTitle},
    {"bip1", "", "tiles 10 red 23 green"},

    {"--", "a profile gets a special mode; also that counts when the window closes"},
    {"simulator", "set 0x652C 2 247"},
    {"window", "press Manage Profiles; entry Floats; press PMDG NGX"},
    {"screen", "29-special-mode"},
    {"multi1", "", R"(upper "  082" lower "     " lights none)"},
    {"window", "close", kMainTitle},
    {"multi1", "", R"(upper "  247" lower "     " lights none)"},
    {"window", "press Manage Profiles; entry Floats; press None; close", kMainTitle},
    {"multi1", "", R"(upper "  082" lower "     " lights none)"},

    {"--", "the user quits"},
    {"screen", "30-general"},
    {"orvo", "quit", "ended with 0"},
    {"radio1 radio2", "", kRadioDark},
    {"multi1 multi2", "", kMultiDark},
    {"switch1 switch2", "", kGearDark},
    {"bip1 bip2", "", "tiles dark"},
};

}  // namespace

bool FlyScriptedFlight(Cockpit& cockpit, const FlightLog& log) {
    cockpit.WriteIni(
        "[Profiles]\r\nAirliner= \r\nJet= \r\n"
        "[Aircrafts]\r\nBench Airliner=Airliner\r\nBench Jet=Jet\r\n");
    cockpit.WriteFile("Default.ini", std::string(kDefaultKeys) + kFlightTiles);
    cockpit.WriteFile("Airliner.ini", kNGXKeys);
    cockpit.WriteFile("Jet.ini", "[Common]\r\nSpecialMode=maddog\r\n");
    return Pilot(cockpit, log).Fly(kFlight);
}

}  // namespace bench
